#pragma once

#include <array>
#include <string>

#include "connections/connection_config.h"
#include "connections/filter_preset.h"

namespace tarnel {

// A line of work whose recommended settings the editor can fill in at once.
enum class SectorPreset {
    photography,
    video,
    ecommerce,
    finance,
    health,
    printGraphics,
    data,
    it,
    custom
};

inline constexpr std::array allSectorPresets = {
    SectorPreset::photography, SectorPreset::video,  SectorPreset::ecommerce,
    SectorPreset::finance,     SectorPreset::health, SectorPreset::printGraphics,
    SectorPreset::data,        SectorPreset::it,     SectorPreset::custom};

// "Photography", "Print & Graphics", ... as the picker shows them.
std::string displayName(SectorPreset sector);
// What the record's `sectorHint` holds once the sector is applied: "print" for print and
// graphics, "" for custom.
std::string sectorHint(SectorPreset sector);

// A new record with the sector's recipe: filter lists, timing, folders, checks, schedule, rules.
ConnectionConfig connectionConfigForSector(SectorPreset sector);

// Writes the sector's recipe into the record being edited, keeping who it is and where it
// connects, logs in and places. Rules are replaced, not merged; only health also switches the
// protocol and port (to SFTP). Gives the filter preset the view then shows.
const FilterPreset& applySector(ConnectionConfig& edited, SectorPreset sector);

}  // namespace tarnel
