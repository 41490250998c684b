#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/resource.h>

#include "platform/notifier.h"
#include "platform/sound_player.h"

// What the benchmark programs share: timing, CPU and memory of this process, peer tools run to
// their end, and services that stay quiet.
namespace tarnel::bench {

using Clock = std::chrono::steady_clock;

class Silent final : public Notifier, public SoundPlayer {
public:
    void post(const std::string&, const std::string&, const std::string&, bool) override {}
    void play(const std::string&) override {}
};

// CPU seconds, user and system, of this process (`who` RUSAGE_SELF) or of the peers it has
// waited for (RUSAGE_CHILDREN).
double cpuSeconds(int who = RUSAGE_SELF);
double secondsSince(Clock::time_point start);
// Resident memory of this process, in KiB.
long residentKiB();
// What the heap holds in use (all arenas, mapped blocks included), in KiB: resident memory less
// this is what the allocator keeps of freed memory, the program's code and its libraries.
long liveHeapKiB();

// Runs a peer tool to its end, quietly; its exit code.
int run(std::vector<std::string> argv);
// A peer tool's standard output, without its last line break.
std::string capture(std::vector<std::string> argv);

// Files that arrived below `root`; none when a contender failed to make it.
std::size_t countFiles(const std::filesystem::path& root);

}  // namespace tarnel::bench
