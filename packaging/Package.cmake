# The Debian package: ./run.sh package (cpack) writes build/vost_<version>_amd64.deb.
# Installed under /usr; the private folder /usr/lib/vost holds TDLib, the demo
# account's library and the helpers.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vost)
set(CPACK_PACKAGE_VENDOR Corvella)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${VOST_PACKAGE_MAINTAINER})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "compact Telegram client for the system tray")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${VOST_HOMEPAGE_URL})
# The summary above is the synopsis; this is the extended description.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Vost lives in the system tray: one chat-bubble icon with a red badge that
counts the unread messages. A click opens a small window holding the whole
client: chats, conversations with photos, documents, voice messages and
stickers, the composer, contacts, sign-in and preferences. New messages bring
a desktop notification and a sound.
.
It talks to Telegram only through TDLib, the Telegram Database Library, which
the package carries. An offline demo account lets one try Vost without a
Telegram account.")
# The libraries the binaries link, from dpkg-shlibdeps; what Qt loads at run time
# (the platform plugin, the QML modules, image formats, the media backend's
# GStreamer plugins) no binary names, so it is listed here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qt6-qpa-plugins, qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-layouts, \
qml6-module-qtquick-window, qml6-module-qtquick-templates, qml6-module-qtqml-workerscript, \
qml6-module-qtwebengine, qml6-module-qtmultimedia, qt6-image-formats-plugins, \
gstreamer1.0-plugins-base, gstreamer1.0-plugins-good")
# Videos in more formats, emoji drawn in colour, a dictionary for the spelling, and
# a native window in Wayland sessions (without it Vost runs through Xwayland).
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "gstreamer1.0-libav, fonts-noto-color-emoji, hunspell-en-us | hunspell-dictionary, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
# No maintainer scripts; lintian's overrides (each with its reason).
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/FinishPackage.cmake)
include(CPack)
