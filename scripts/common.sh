# Shared by the scripts: paths, the Wine prefix and a private X server.
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build_dir="${BUILD_DIR:-$root/build}"
export WINEPREFIX="${WINEPREFIX:-$HOME/.cache/editor-wine}"
export WINEARCH=win32
export WINEDEBUG="${WINEDEBUG:--all}"
# No Mono or Gecko prompts: nothing here needs them.
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"

prepare_wine_prefix() {
    if [ ! -f "$WINEPREFIX/.editor-ready" ]; then
        echo "setup: preparing the Wine prefix at $WINEPREFIX"
        mkdir -p "$WINEPREFIX"
        with_display wineboot -i >/dev/null 2>&1 || true
        # A virtual desktop: without a window manager under Xvfb, Wine otherwise
        # waits about two seconds each time a visible window is destroyed.
        wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null 2>&1
        wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1280x1024 /f >/dev/null 2>&1
        wineserver -w || true
        touch "$WINEPREFIX/.editor-ready"
    fi
    link_wine_fonts
}

# Debian's Wine looks for its own fonts (Marlett for caption buttons, check
# marks and scroll arrows; Tahoma for dialogs) beside its data folder, where
# fonts-wine does not put them: link them into the prefix, where it does look.
link_wine_fonts() {
    local fonts="$WINEPREFIX/drive_c/windows/Fonts" font target
    [ -d /usr/share/wine/fonts ] && [ -d "$fonts" ] || return 0
    for font in /usr/share/wine/fonts/*; do
        target="$fonts/$(basename "$font")"
        [ -e "$target" ] || ln -sfn "$font" "$target"
    done
}

# Runs a command with a display: the caller's, or a private Xvfb for the
# duration of the command.
with_display() {
    if [ -n "${DISPLAY:-}" ]; then
        "$@"
        return
    fi
    local n
    for n in $(seq 90 140); do
        [ -e "/tmp/.X${n}-lock" ] || [ -e "/tmp/.X11-unix/X${n}" ] || break
    done
    Xvfb ":$n" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
    local xpid=$!
    local i
    for i in $(seq 1 50); do
        [ -e "/tmp/.X11-unix/X${n}" ] && break
        sleep 0.1
    done
    local rc=0
    DISPLAY=":$n" "$@" || rc=$?
    # Let Wine wind down on its own before its X server goes away; a run in
    # the same prefix on another display is not cut short this way.
    DISPLAY=":$n" timeout 30 wineserver -w >/dev/null 2>&1 || true
    kill "$xpid" 2>/dev/null || true
    wait "$xpid" 2>/dev/null || true
    return $rc
}
