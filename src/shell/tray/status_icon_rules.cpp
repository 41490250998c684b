#include "shell/tray/status_icon_rules.h"

namespace tarnel {

StatusIconImage statusIconImage(ConnectionState state, bool paused, bool downloading) {
    if (paused) return StatusIconImage::pause;
    if (downloading) return StatusIconImage::download;
    if (state == ConnectionState::error) return StatusIconImage::error;
    if (state == ConnectionState::syncing) return StatusIconImage::syncing;
    return StatusIconImage::basic;
}

const char* artworkName(StatusIconImage image) {
    switch (image) {
    case StatusIconImage::basic: return "Navbar-Basic";
    case StatusIconImage::pause: return "Navbar-Pause";
    case StatusIconImage::download: return "Navbar-Download";
    case StatusIconImage::error: return "Navbar-Error";
    case StatusIconImage::syncing: return "Navbar-CloudAlone";
    }
    return "Navbar-Basic";
}

}  // namespace tarnel
