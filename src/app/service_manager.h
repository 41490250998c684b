#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/main_loop.h"

namespace tarnel {

// Tells systemd how a `Type=notify` service is doing: ready once the engines run, the fleet's
// one-line summary whenever it changes, a watchdog ping from the main loop (so that a loop that
// freezes gets the service restarted), and stopping at the end. Without NOTIFY_SOCKET (not run
// by systemd) every message goes nowhere, at no cost. Lives on the main loop.
class ServiceManager {
public:
    // `summary` gives the line systemd shows as the service's status.
    ServiceManager(MainLoop& loop, std::function<std::string()> summary);

    void ready();
    void stopping();

private:
    void tick();

    std::function<std::string()> summary_;
    std::string shown_;
    bool watchdog_ = false;
    std::unique_ptr<Timer> timer_;
};

// Whether standard output is the journal (systemd says so in JOURNAL_STREAM), so that a line
// may carry its level as a syslog priority prefix.
bool standardOutputIsJournal();

// The line with its level as sd-daemon's prefix ("<4>" for "WARN"): the log file's line form,
// "[time] LEVEL message".
std::string withJournalPriority(const std::string& line);

}  // namespace tarnel
