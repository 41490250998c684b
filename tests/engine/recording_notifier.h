#pragma once

#include <string>
#include <vector>

#include "platform/notifier.h"
#include "platform/sound_player.h"

namespace tarnel::testing {

// Keeps what would have been shown, for tests that check what reaches the user.
class RecordingNotifier final : public Notifier {
public:
    struct Posted {
        std::string identifier, title, body;
        bool withSound;
    };
    std::vector<Posted> posted;

    void post(const std::string& identifier, const std::string& title, const std::string& body,
              bool withSound) override {
        posted.push_back({identifier, title, body, withSound});
    }
};

// Keeps the names of the sounds that would have played.
class RecordingSoundPlayer final : public SoundPlayer {
public:
    std::vector<std::string> played;
    void play(const std::string& name) override { played.push_back(name); }
};

}  // namespace tarnel::testing
