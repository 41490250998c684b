#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnel {

// A hold on the system's idle sleep, taken and released by a numeric handle. In the
// application, a logind inhibitor lock; in tests, a scripted stand-in.
class SleepInhibitor {
public:
    virtual ~SleepInhibitor() = default;
    // Takes a hold that names `why`; nothing when the system refused it.
    virtual std::optional<std::uint32_t> inhibit(const std::string& why) = 0;
    // Gives back a hold that inhibit() returned.
    virtual void release(std::uint32_t handle) = 0;
};

}  // namespace tarnel
