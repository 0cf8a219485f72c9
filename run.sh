#!/usr/bin/env bash
# Vost's entry points on a fresh Debian 12 machine:
#   ./run.sh app      set up, build and start the client
#   ./run.sh test     set up (with the test tools), build and run every test (but
#                     the slow soak: -L slow)
#   ./run.sh test --sanitize  the same tests but the UI cases under ASan and UBSan
#                             (and a few UI cases labelled sanitize-ui), the tests
#                             where threads meet under TSan, then each fuzz target
#                             for VOST_FUZZ_SECONDS (60)
#   ./run.sh install  set up, build and install into ~/.local (VOST_PREFIX picks another)
#   ./run.sh package  set up, build and make build/vost_<version>_amd64.deb
# Set-up installs the missing Debian packages, then CMake installs TDLib and the
# Lottie player from npm into the build tree. VOST_TELEGRAM_API_ID and
# VOST_TELEGRAM_API_HASH, when set, are built into the client.
set -euo pipefail
cd "$(dirname "$0")"

BUILD_DIR=${VOST_BUILD_DIR:-build}
BUILD_TYPE=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)

# "package:command" is satisfied by the command alone (Node.js may come from elsewhere).
# What building Vost needs, and what it loads when it runs: Qt's platform plugins for
# X11 and Wayland (and the X client library the global shortcut grabs its key with;
# Wayland's client library, Qt's private headers and Plasma's protocols for placing the
# popover on KWin),
# QML modules, image formats, the media backend's GStreamer plugins, the emoji font,
# the translation tools (lupdate/lrelease), fonts with Cyrillic and Arabic-script glyphs, and
# Hunspell with the dictionaries of English and of the catalogs' languages (spelling).
DEBIAN_PACKAGES=(
    g++ cmake ninja-build ccache pkg-config zlib1g-dev libicu-dev librlottie-dev unicode-data nodejs:node npm:npm
    librsvg2-bin
    qt6-base-dev qt6-declarative-dev qt6-webengine-dev qt6-multimedia-dev qt6-svg-dev libgl-dev qt6-qpa-plugins libxcb1-dev
    qt6-wayland libwayland-dev plasma-wayland-protocols qt6-base-private-dev
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts qml6-module-qtquick-window
    qml6-module-qtquick-templates qml6-module-qtqml-workerscript qml6-module-qtwebengine
    qml6-module-qtmultimedia qt6-image-formats-plugins
    gstreamer1.0-plugins-base gstreamer1.0-plugins-good gstreamer1.0-libav
    fonts-noto-color-emoji fonts-noto-core
    qt6-l10n-tools qt6-tools-dev
    libhunspell-dev hunspell-en-us hunspell-ru hunspell-de-de hunspell-es hunspell-pt-br myspell-fa
)
# What the tests add: a virtual screen and session bus, tray hosts (trayer, Xfce's
# and LXQt's panels), Wayland compositors (sway with its bar, screenshots and keyboard:
# waybar, grim, wtype; KDE's KWin), GNOME's file chooser portal, a notification server,
# a sound server, the accessibility bus and its Python client, pointer and keyboard,
# screenshots and the clipboard, the locales' sources (the language cases compile
# Russian and Persian ones for themselves); the package's builder and checkers.
TEST_PACKAGES=(
    xvfb xauth dbus trayer xdotool at-spi2-core python3-pyatspi gir1.2-atspi-2.0 imagemagick xclip
    pulseaudio pulseaudio-utils dunst xfce4-panel xfconf lxqt-panel locales
    sway waybar grim wtype xdg-desktop-portal xdg-desktop-portal-gtk kwin-wayland
    dpkg-dev fakeroot lintian desktop-file-utils appstream
)
# What making the Debian package adds.
PACKAGE_PACKAGES=(dpkg-dev fakeroot)

install_packages() {
    local missing=()
    for entry in "${DEBIAN_PACKAGES[@]}"; do
        local package=${entry%%:*} command=${entry#*:}
        [ "$command" != "$entry" ] && command -v "$command" >/dev/null && continue
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local sudo=
    [ "$(id -u)" -eq 0 ] || sudo=sudo
    echo "Installing Debian packages: ${missing[*]}"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# ccache, where installed, lets other checkouts and build trees reuse objects.
LAUNCHER=()
if command -v ccache >/dev/null; then
    # Paths inside the tree, and the build folder itself, stay out of the cache keys.
    export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
    LAUNCHER=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

build() {
    install_packages
    cmake -S . -B "$BUILD_DIR" -G Ninja "${BUILD_TYPE[@]}" "${LAUNCHER[@]}" -DVOST_SANITIZE="${SANITIZE:-OFF}" \
        -DVOST_TELEGRAM_API_ID="${VOST_TELEGRAM_API_ID:-}" \
        -DVOST_TELEGRAM_API_HASH="${VOST_TELEGRAM_API_HASH:-}" >/dev/null
    cmake --build "$BUILD_DIR"
}

# Every test but the UI cases in a tree built with AddressSanitizer and
# UndefinedBehaviorSanitizer (GCC), then a bounded run of each fuzz target in a
# tree built with clang's libFuzzer and the same sanitizers.
sanitized_tests() {
    BUILD_DIR=${VOST_SANITIZE_BUILD_DIR:-build-sanitize}
    SANITIZE=ON
    # Lightly optimised, line tables only, Qt's assertions on: quick to build.
    BUILD_TYPE=(-DCMAKE_BUILD_TYPE=Debug "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -g1" "-DCMAKE_C_FLAGS_DEBUG=-O1 -g1")
    DEBIAN_PACKAGES+=("${TEST_PACKAGES[@]}" clang libclang-rt-14-dev)
    build
    # GCC 12's leak checker misreads glibc 2.36's table of dynamically loaded
    # thread-local blocks once enough libraries are loaded, and crashes ("Tracer
    # caught signal 11"); it is kept from following __tls_get_addr.
    export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:intercept_tls_get_addr=0
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    export LSAN_OPTIONS=suppressions=$PWD/tests/sanitizers/lsan.supp:print_suppressions=0
    # (The catalog check runs no code of ours: nothing to sanitize.)
    xvfb-run -a -s "-screen 0 1280x800x24" \
        ctest --test-dir "$BUILD_DIR" --output-on-failure --timeout 600 -LE "ui|catalogs" "$@"
    # A few UI cases (saving files, a long walk through every view) drive the
    # sanitized program itself; each makes its own screens. Leaks are left to the
    # cases above (Qt's accessibility leaves blocks behind that are not ours), and
    # the web engine of the sticker host deletes with mismatched types of its own.
    ASAN_OPTIONS=detect_leaks=0:abort_on_error=1:intercept_tls_get_addr=0:new_delete_type_mismatch=0 \
        ctest --test-dir "$BUILD_DIR" --output-on-failure --timeout 900 -L sanitize-ui "$@"

    # Qt is not built with ThreadSanitizer: what happens inside its libraries
    # (its thread pool, its semaphores) is not checked, and the receive loop tells
    # the sanitizer where it hands an event to the main thread.
    local thread_dir=${VOST_TSAN_BUILD_DIR:-build-tsan}
    cmake -S . -B "$thread_dir" -G Ninja "${BUILD_TYPE[@]}" "${LAUNCHER[@]}" -DVOST_SANITIZE_THREAD=ON >/dev/null
    cmake --build "$thread_dir" --target vost-thread-tests
    TSAN_OPTIONS=ignore_noninstrumented_modules=1:second_deadlock_stack=1 \
        ctest --test-dir "$thread_dir" --output-on-failure --timeout 600 -L threads

    local fuzz_dir=${VOST_FUZZ_BUILD_DIR:-build-fuzz}
    CC=clang CXX=clang++ cmake -S . -B "$fuzz_dir" -G Ninja "${BUILD_TYPE[@]}" "${LAUNCHER[@]}" -DVOST_FUZZ=ON \
        -DVOST_BUILD_TESTS=OFF -DVOST_FUZZ_SECONDS="${VOST_FUZZ_SECONDS:-60}" >/dev/null
    cmake --build "$fuzz_dir" --target vost-fuzzers
    ctest --test-dir "$fuzz_dir" --output-on-failure -L fuzz
}

case "${1:-}" in
app)
    shift
    build
    exec "$BUILD_DIR/bin/vost" "$@"
    ;;
test)
    shift
    if [ "${1:-}" = --sanitize ]; then
        shift
        sanitized_tests "$@"
        exit
    fi
    DEBIAN_PACKAGES+=("${TEST_PACKAGES[@]}")
    build
    # Without a selection of its own, the run leaves out the slow soak cases and,
    # until the translations are in, the catalog check (make it -LE slow then).
    [ $# -eq 0 ] && set -- -LE slow
    # Tests that show windows or web pages get a virtual screen of their own.
    exec xvfb-run -a -s "-screen 0 1280x800x24" \
        ctest --test-dir "$BUILD_DIR" --output-on-failure --timeout 300 "$@"
    ;;
install)
    shift
    build
    prefix=${VOST_PREFIX:-$HOME/.local}
    cmake --install "$BUILD_DIR" --prefix "$prefix" --strip
    echo "Installed Vost in $prefix: run $prefix/bin/vost, or choose it in the menu."
    ;;
package)
    shift
    DEBIAN_PACKAGES+=("${PACKAGE_PACKAGES[@]}")
    build
    (cd "$BUILD_DIR" && cpack -G DEB)
    ;;
*)
    echo "usage: ./run.sh app|test|install|package" >&2
    exit 2
    ;;
esac
