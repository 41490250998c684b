#pragma once

#include <string>

namespace tarnel {

// Plays one of the program's short sounds by name ("Glass", "Pop", "Purr", "Ping",
// "Submarine"); an unknown name plays nothing.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    virtual void play(const std::string& name) = 0;
};

}  // namespace tarnel
