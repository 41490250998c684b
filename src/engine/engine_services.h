#pragma once

namespace tarnel {

struct Runtime;
class AppSettings;
class FileSyncer;
class HistoryService;
class LogService;
class NotificationService;
class PartialDownloadTracker;
class SleepMonitor;
class SoundPlayer;
class StatsService;

// The shared services every engine of the fleet uses. All outlive the engines.
struct EngineServices {
    Runtime& runtime;
    LogService& logService;
    StatsService& statsService;
    HistoryService& historyService;
    AppSettings& globalSettings;
    PartialDownloadTracker& partialTracker;
    NotificationService& notifications;
    SleepMonitor& sleepMonitor;
    SoundPlayer& soundPlayer;
    FileSyncer& fileSyncer;  // a placed file is durable before its remote delete
};

}  // namespace tarnel
