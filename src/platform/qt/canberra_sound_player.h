#pragma once

#include <QTemporaryDir>
#include <string>

#include "platform/sound_player.h"

struct ca_context;

namespace tarnel {

// Plays the program's own short sounds through the desktop's sound service (libcanberra, which
// reaches PulseAudio, PipeWire or ALSA). The sounds are compiled into the program (":/sounds/")
// and written out once to a private folder, since libcanberra plays files. Without a sound
// device nothing is heard and nothing fails.
class CanberraSoundPlayer final : public SoundPlayer {
public:
    CanberraSoundPlayer();
    ~CanberraSoundPlayer() override;

    CanberraSoundPlayer(const CanberraSoundPlayer&) = delete;
    CanberraSoundPlayer& operator=(const CanberraSoundPlayer&) = delete;

    void play(const std::string& name) override;

private:
    ca_context* context_ = nullptr;
    QTemporaryDir files_;
};

}  // namespace tarnel
