# Shared by scripts/run and scripts/screenshots for the Windows program: a program folder as a Windows
# player has it (the language and FAQ files beside the program, a demo game) and a Wine prefix that shows
# windows on the X display with Wine's own window frames.
# Sourced after common.sh, not run.

PAVONEL_WINE64=/usr/lib/wine/wine64
PAVONEL_WINESERVER=/usr/lib/wine/wineserver

# Fills folder $1 with the built programs named after it ($2...), config\, doc\ and a demo game: the
# Windows stand-in as game\tarvolin.exe, two scenarios, two graphic paks and a log file.
pavonel_windows_folder() {
    local folder=$1 bin="$PAVONEL_ROOT/build/windows/bin" program
    shift
    mkdir -p "$folder/game/Scenarios/Alpine Loop" "$folder/game/Scenarios/Harbour Line"
    for program in "$@"; do cp "$bin/$program" "$folder/"; done
    cp -r "$PAVONEL_ROOT/config" "$PAVONEL_ROOT/doc" "$folder/"
    cp "$bin/pavonel_standin_game.exe" "$folder/game/tarvolin.exe"
    : >"$folder/game/pak64.pak"
    : >"$folder/game/pak128.pak"
    printf 'Tarvolin demo log\r\n' >"$folder/game/tarvo.log"
}

# The Windows path of a Linux path, as Wine's drive Z: shows it.
pavonel_wine_path() {
    printf 'Z:%s' "${1//\//\\}"
}

# Makes the Wine prefix $1 once, at $2 dots per inch (96 is 100 %), with windows that Wine frames itself.
pavonel_wine_prefix() {
    local prefix=$1 dpi=$2
    export WINEPREFIX=$prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
    if [ ! -f "$prefix/system.reg" ]; then
        "$PAVONEL_WINE64" wineboot --init >/dev/null 2>&1
        "$PAVONEL_WINE64" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
        "$PAVONEL_WINE64" reg add 'HKCU\Software\Wine\X11 Driver' /v Decorated /d N /f >/dev/null 2>&1
    fi
    "$PAVONEL_WINE64" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null 2>&1
    "$PAVONEL_WINESERVER" --wait
}
