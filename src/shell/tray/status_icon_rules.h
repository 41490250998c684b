#pragma once

#include "engine/sync_engine.h"

namespace tarnel {

// The five faces of the status icon; `syncing` is the turning animation.
enum class StatusIconImage { basic, pause, download, error, syncing };

// The first rule that holds: paused, then downloading, then error, then syncing, else basic.
StatusIconImage statusIconImage(ConnectionState state, bool paused, bool downloading);

// The artwork's name ("Navbar-Pause"); for `syncing` the cloud the arrows turn over.
const char* artworkName(StatusIconImage image);

}  // namespace tarnel
