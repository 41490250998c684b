#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "connections/connection_config.h"
#include "platform/clock.h"

namespace tarnel {

// The texts of the connection editor that follow the record, kept apart from the widgets so
// that each rule can be checked alone.

// "No minimum", "1023 B", "1 KB", "1.0 MB".
QString minFileSizeText(std::int64_t bytes);
// "1 file", "3 files".
QString fileCountText(int count);
// "1 folder selected", "2 folders selected".
QString foldersSelectedText(std::size_t count);
// What the pattern makes of "FC04456.jpg" with the record's host, at the clock's present.
QString renamePreview(const ConnectionConfig& config, const Clock& clock);
// "Example: " the folder that the date and connection choices give, then "/file.jpg".
QString organizationExample(const ConnectionConfig& config, const Clock& clock);
// Monday first, as the record's schedule days are.
std::vector<QString> dayLabels();

// Why a field's value cannot be used, said beside the field; nothing when it can.
std::optional<QString> portProblem(int port);
std::optional<QString> remotePathProblem(const std::string& path);
// Whether every field can be used and the two that Apply needs are filled in.
bool canApply(const ConnectionConfig& config);

// The colour a tag colour is drawn in; a light grey for none.
QColor tagDisplayColor(std::optional<FinderTagColor> color);

// The picker entries of the polling interval and the speed limit, in order.
const std::vector<std::pair<const char*, double>>& pollIntervalChoices();
const std::vector<std::pair<const char*, int>>& bandwidthChoices();

}  // namespace tarnel
