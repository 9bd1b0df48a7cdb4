# shellcheck shell=bash disable=SC2034,SC2154
# A desktop of the tour's own: a display, a window manager, and an empty home that is deleted at the end.

processes=()
home=
program_pid=

step() {
    now="$theme: $*"
    echo "tour: $now"
}

fail() {
    echo "tour: FAILED at \"$now\": $*" >&2
    [[ -z ${DISPLAY:-} ]] || import -window root build/tour/failure.png || true
    [[ ! -s build/tour/program.log ]] || tail -n 20 build/tour/program.log >&2
    exit 1
}

# await WHAT CONDITION...: nothing here waits for a time; a condition that does not come is a failure.
await() {
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@"; do
        [[ -z $program_pid ]] || kill -0 "$program_pid" 2>/dev/null || fail "the program ended before: $what"
        ((SECONDS < end)) || fail "this did not come within twenty seconds: $what"
        ((SECONDS < 60)) || fail "the tour takes longer than a minute; still missing: $what"
        sleep 0.02
    done
}

# The last started process ends first.
leave_desktop() {
    local i
    for ((i = ${#processes[@]} - 1; i >= 0; i--)); do
        kill "${processes[i]}" 2>/dev/null || true
        wait "${processes[i]}" 2>/dev/null || true
    done
    processes=()
    [[ -z $home ]] || rm -rf "$home"
    home=
    program_pid=
    unset DISPLAY
}

# Everything on the desktop runs with this environment and nothing of the caller's: no printers, no session bus.
# It takes the place of the background process that calls it, so that $! is the program's own number.
on_desktop() {
    exec env -i PATH="$PATH" LANG=C.UTF-8 DISPLAY="$DISPLAY" QT_QPA_PLATFORM=xcb HOME="$home" TMPDIR="$home/tmp" \
        XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache" \
        XDG_STATE_HOME="$home/.local/state" XDG_RUNTIME_DIR="$home/run" DBUS_SESSION_BUS_ADDRESS=disabled: \
        CUPS_SERVER="$home/run/no-printers" "${theme_settings[@]}" "$@"
}

make_home() {
    home=$(mktemp -d)
    mkdir -p "$home"/{tmp,run,.config,.cache,.local/share,.local/state}
    chmod 700 "$home/run"
    theme_settings=(XDG_CURRENT_DESKTOP=none)
    if [[ $theme == dark ]]; then
        theme_settings=(XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 KDE_FULL_SESSION=true)
        cp tour/dark-colours "$home/.config/kdeglobals"
    fi
}

has_window_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

start_display() {
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$home/display" >"$home/xvfb.log" 2>&1 &
    processes+=($!)
    await "a display" test -s "$home/display"
    DISPLAY=:$(<"$home/display")
    export DISPLAY
    on_desktop openbox --sm-disable >"$home/openbox.log" 2>&1 &
    processes+=($!)
    # Without a window manager every key would be lost in silence.
    await "a window manager" has_window_manager
}

start_program() {
    on_desktop "$program" >build/tour/program.log 2>&1 </dev/null &
    program_pid=$!
    processes+=("$program_pid")
    await "the window Gradeloom X" window_in_front "Gradeloom X"
    main=$front
    measure_menu_bar
}

has_ended() { ! kill -0 "$1" 2>/dev/null; }

# Quits the program as a user does.
quit_program() {
    local pid=$program_pid status=0
    xdotool key ctrl+q
    program_pid= # its end is no failure any more
    await "the program's end" has_ended "$pid"
    wait "$pid" || status=$?
    same "the program's exit status" 0 "$status"
}
