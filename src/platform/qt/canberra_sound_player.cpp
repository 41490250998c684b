#include "platform/qt/canberra_sound_player.h"

#include <canberra.h>

#include <QFile>
#include <algorithm>
#include <array>
#include <iostream>

namespace tarnel {

namespace {
constexpr std::array<const char*, 5> knownSounds{"Glass", "Pop", "Purr", "Ping", "Submarine"};
}  // namespace

CanberraSoundPlayer::CanberraSoundPlayer() {
    if (ca_context_create(&context_) != CA_SUCCESS) context_ = nullptr;
    if (context_)
        ca_context_change_props(context_, CA_PROP_APPLICATION_NAME, "Tarnel",
                                CA_PROP_APPLICATION_ID, "tarnel", nullptr);
}

CanberraSoundPlayer::~CanberraSoundPlayer() {
    if (context_) ca_context_destroy(context_);
}

void CanberraSoundPlayer::play(const std::string& name) {
    if (!context_ || !files_.isValid()) return;
    if (std::none_of(knownSounds.begin(), knownSounds.end(), [&](const char* s) { return name == s; }))
        return;
    const auto fileName = QString::fromStdString(name) + QStringLiteral(".wav");
    const auto path = files_.filePath(fileName);
    if (!QFile::exists(path) && !QFile::copy(QStringLiteral(":/sounds/") + fileName, path)) return;
    const int result = ca_context_play(context_, 0, CA_PROP_MEDIA_FILENAME, path.toUtf8().constData(),
                                       CA_PROP_EVENT_DESCRIPTION, name.c_str(), nullptr);
    // No device is the usual reason, and a sound is never worth more than a line.
    if (result != CA_SUCCESS)
        std::cerr << "Sound '" << name << "' not played: " << ca_strerror(result) << std::endl;
}

}  // namespace tarnel
