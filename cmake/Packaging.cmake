# The Debian package of what the install rules install: `cpack -G DEB` in the build folder
# (or `cmake --build build --target package`, or scripts/package) writes tarnel_<version>_<arch>.deb.
# The addresses are configured once, beside the about window that shows them.
set(TARNEL_PACKAGE_MAINTAINER "Tarnel developers <${TARNEL_SUPPORT_EMAIL}>"
    CACHE STRING "The Maintainer field of the Debian package")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnel)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${TARNEL_PACKAGE_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Pulls files from FTP, FTPS and SFTP servers unattended")
# Debian's extended description: lines of at most 80 columns.
string(JOIN "\n" CPACK_PACKAGE_DESCRIPTION
    "Tarnel watches folders on FTP, FTPS and SFTP servers, downloads each file once"
    "its size has settled, checks it, files it into the right local folder under"
    "the right name, and can remove it from the server. It runs from the desktop's"
    "tray, or without it as a systemd user service:"
    "systemctl --user enable --now tarnel-headless")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# The build carries debug information; the package does not need it.
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TARNEL_WEBSITE})
# The libraries the program links come from dpkg-shlibdeps. What it loads or starts at run time
# is named here: Qt's platform plugins (the X11 one; the Wayland one where the desktop runs
# Wayland), xdg-open and gio for the post-download actions that open a document or start an
# application, and libcanberra's PulseAudio backend, which desktops with a sound server have
# already (its own ALSA backend plays without one).
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils, libglib2.0-bin")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libcanberra-pulse, qt6-translations-l10n, fonts-noto-cjk")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

include(CPack)
