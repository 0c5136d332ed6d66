# Shared by scripts/run and scripts/test: installs what is missing, then configures and builds a preset.
# Sourced, not run.

PAVONEL_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

# Installs the Debian packages that are not installed yet: directly when run as root, otherwise it prints
# the one command to run and stops.
pavonel_ensure_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    if [ "$(id -u)" -ne 0 ]; then
        echo "Pavonel needs these Debian packages first. Please run:" >&2
        echo "  sudo apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing Debian packages: ${missing[*]}"
    apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures the preset once (later builds re-run CMake by themselves when a CMake file changes), then builds.
pavonel_build() {
    local preset=$1
    shift
    cd "$PAVONEL_ROOT"
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" >/dev/null
    fi
    cmake --build --preset "$preset" "$@" | grep -v '^\[[0-9]*/[0-9]*\] ' || true
    [ "${PIPESTATUS[0]}" -eq 0 ]
}

PAVONEL_BUILD_PACKAGES=(cmake ninja-build g++ libgtest-dev libgmock-dev libbenchmark-dev qt6-base-dev fonts-dejavu-core
    librsvg2-bin)
# What the launcher itself needs at run time on Linux: xdg-open opens folders, documents and web pages, and is
# the text editor proposed when no desktop editor is installed; Qt's translations give its own texts (the
# file chooser's buttons) in the chosen language.
PAVONEL_RUN_PACKAGES=(xdg-utils qt6-translations-l10n)
# Without a display, scripts/run starts the launcher on a virtual X display and serves it over VNC.
PAVONEL_HEADLESS_PACKAGES=(xvfb x11vnc)
# The tests validate desktop entries (desktop-file-validate) and the metainfo (appstreamcli), start an entry
# through GLib (gio), and check the .deb (dpkg-dev for its dependencies, lintian, strace to see what the
# installed program reads).
PAVONEL_TEST_PACKAGES=(clang libclang-rt-dev clang-format desktop-file-utils libglib2.0-bin appstream dpkg-dev
    lintian strace)
# The Windows build: the compiler, GoogleTest's sources to build for Windows, Wine to run the tests,
# icotool, which packs the program's icon (drawn from the Linux icon by rsvg-convert) for Windows, and NSIS,
# which makes the installer.
PAVONEL_WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix googletest wine64 icoutils nsis)

# The settings file of the demo: its standard profile plays the game at $2 with the graphic pak pak128.pak.
pavonel_demo_settings() {
    printf '[PROFILES]\r\nLASTACTIVEPROFILE=PROFILE_DEFAULT\r\n[PROFILE_DEFAULT]\r\nTARVOPATH=%s\r\nGRAPICPAK=pak128.pak\r\nDESCRIPTION=Demo: a stand-in game\r\n' \
        "$2" >"$1"
}

# Starts a virtual X display (Xvfb) of size $1 (WIDTHxHEIGHT) on the first number no X server holds, and
# exports DISPLAY; PAVONEL_XVFB is its process.
PAVONEL_XVFB=""
pavonel_virtual_display() {
    local number=99
    while [ -e "/tmp/.X11-unix/X$number" ] || [ -e "/tmp/.X$number-lock" ]; do number=$((number + 1)); done
    Xvfb ":$number" -screen 0 "$1x24" -br -nolisten tcp >/dev/null 2>&1 &
    PAVONEL_XVFB=$!
    for _ in $(seq 50); do
        [ -e "/tmp/.X11-unix/X$number" ] && break
        sleep 0.1
    done
    export DISPLAY=":$number"
}

# Serves the virtual display over VNC on 127.0.0.1 only (the next free port after 5900), its log and port
# in folder $1, and says how to connect; $2 says how the program ends.
pavonel_serve_vnc() {
    local port
    x11vnc -display "$DISPLAY" -localhost -rfbport 5900 -autoport 5900 -forever -shared -nopw -quiet \
        -bg -o "$1/x11vnc.log" >"$1/x11vnc.port" 2>/dev/null || true
    port=$(sed -n 's/^PORT=//p' "$1/x11vnc.port" 2>/dev/null)
    if [ -n "$port" ]; then
        echo "To use the window live, connect a VNC viewer to 127.0.0.1:$port (from another machine:"
        echo "ssh -L $port:127.0.0.1:$port to this one first). $2"
    fi
}
