#include "app/service_manager.h"

#include <sys/stat.h>
#include <systemd/sd-daemon.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstdio>

namespace tarnel {

namespace {
// How often the summary is looked at when no watchdog asks for more.
constexpr std::chrono::milliseconds summaryInterval{2000};
}  // namespace

ServiceManager::ServiceManager(MainLoop& loop, std::function<std::string()> summary)
    : summary_(std::move(summary)) {
    std::uint64_t watchdogMicroseconds = 0;
    watchdog_ = sd_watchdog_enabled(0, &watchdogMicroseconds) > 0;
    auto interval = summaryInterval;
    // Pinged at a quarter of systemd's limit: a busy moment never reads as a freeze.
    if (watchdog_)
        interval = std::min(interval, std::chrono::duration_cast<std::chrono::milliseconds>(
                                          std::chrono::microseconds(watchdogMicroseconds / 4)));
    timer_ = loop.startTimer(std::max(interval, std::chrono::milliseconds(1)), true, [this] { tick(); });
}

void ServiceManager::ready() {
    shown_ = summary_();
    sd_notify(0, ("READY=1\nSTATUS=" + shown_).c_str());
}

void ServiceManager::stopping() {
    timer_.reset();
    sd_notify(0, "STOPPING=1\nSTATUS=Stopping");
}

void ServiceManager::tick() {
    if (watchdog_) sd_notify(0, "WATCHDOG=1");
    if (auto line = summary_(); line != shown_) {
        shown_ = std::move(line);
        sd_notify(0, ("STATUS=" + shown_).c_str());
    }
}

bool standardOutputIsJournal() {
    const char* stream = std::getenv("JOURNAL_STREAM");
    if (!stream) return false;
    unsigned long long device = 0, inode = 0;
    if (std::sscanf(stream, "%llu:%llu", &device, &inode) != 2) return false;
    struct stat out {};
    return ::fstat(1, &out) == 0 && out.st_dev == device && out.st_ino == inode;
}

std::string withJournalPriority(const std::string& line) {
    constexpr std::pair<const char*, const char*> priorities[] = {
        {"] ERR ", SD_ERR}, {"] WARN ", SD_WARNING}, {"] OK ", SD_NOTICE}, {"] INFO ", SD_INFO}};
    const auto stamp = line.find("] ");
    for (const auto& [word, priority] : priorities)
        if (stamp != std::string::npos && line.compare(stamp, std::char_traits<char>::length(word), word) == 0)
            return priority + line;
    return line;
}

}  // namespace tarnel
