# shellcheck shell=bash
# The tour's own desktop: a display, a window manager, and an empty home that is deleted at the end.

# Set by its caller and by tour/hands.sh: program, theme, now, front.
declare -A started=() # process numbers by what runs
part_start=0          # the second in which this part of the tour began
home=

step() {
    now="$theme: $*"
    echo "tour: $now"
}

fail() {
    echo "tour: FAILED at \"$now\": $*" >&2
    photograph_screen || true
    tail -n 20 build/tour/*.log >&2
    exit 1
}

nothing_ended() {
    for ended in "${!started[@]}"; do
        kill -0 "${started[$ended]}" 2>/dev/null || return 1
    done
}

same() { # WHAT EXPECTED SEEN
    [[ $2 == "$3" ]] || fail "$1: expected \"$2\", saw \"$3\""
}

same_lines() { # WHAT EXPECTED SEEN
    diff <(echo "$2") <(echo "$3") >&2 || fail "$1 differ: < is expected, > was seen"
}

# Waits for a condition, never for a fixed time, and fails after twenty seconds.
await() { # WHAT CONDITION...
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@"; do
        nothing_ended || fail "the $ended ended before: $what"
        ((SECONDS < end)) || fail "this did not come within twenty seconds: $what"
        ((SECONDS - part_start < 60)) || fail "this part takes longer than a minute; still missing: $what"
        sleep 0.02
    done
}

leave_desktop() {
    local process
    for process in program "window manager" keyboard mouse display "message bus"; do
        [[ -n ${started[$process]:-} ]] || continue
        kill "${started[$process]}" 2>/dev/null || true
        wait "${started[$process]}" 2>/dev/null || true
    done
    started=()
    [[ -z $home ]] || rm -rf "$home"
    home=
    unset DISPLAY
}

# Runs a command with this environment alone: no printers, no session bus, nothing of the caller's. The command
# replaces the calling background process, so $! is its process number. The shell makes background processes ignore
# SIGINT; a program started by hand does not.
on_desktop() {
    exec env --default-signal=INT -i PATH="$PATH" LANG=C.UTF-8 DISPLAY="$DISPLAY" QT_QPA_PLATFORM=xcb \
        HOME="$home" TMPDIR="$home/tmp" \
        XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache" \
        XDG_STATE_HOME="$home/.local/state" XDG_RUNTIME_DIR="$home/run" DBUS_SESSION_BUS_ADDRESS=disabled: \
        CUPS_SERVER="$home/run/no-printers" "${theme_settings[@]}" "$@"
}

make_home() {
    home=$(mktemp -d)
    # shellcheck disable=SC2034 # only some of the visits read it
    preferences=$home/.config/gradeloom/Preferences
    mkdir -p "$home"/{tmp,run,.config,.cache,.local/share,.local/state}
    chmod 700 "$home/run"
    local kde=(XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 KDE_FULL_SESSION=true)
    theme_settings=(XDG_CURRENT_DESKTOP=none)
    case $theme in
        dark)
            theme_settings=("${kde[@]}")
            cp tour/dark-colours "$home/.config/kdeglobals"
            ;;
        large)
            theme_settings=("${kde[@]}")
            printf '[General]\nfont=DejaVu Sans,20,-1,5,50,0,0,0,0,0\n' >"$home/.config/kdeglobals"
            ;;
        adwaita* | breeze) theme_settings+=(QT_STYLE_OVERRIDE="$theme") ;;
        gtk3 | gnome) theme_settings+=(QT_QPA_PLATFORMTHEME="$theme") ;;
    esac
}

screen_size() { if [[ $theme == small ]]; then echo 1024x600; else echo 1280x1024; fi; }

# Whether a desktop's style is installed; `gnome` is part of the toolkit.
has_style() { # THEME
    local plugins
    plugins=$(qmake6 -query QT_INSTALL_PLUGINS)
    case $1 in
        gnome) ;;
        gtk3) [[ -e $plugins/platformthemes/libqgtk3.so ]] ;;
        *) compgen -G "$plugins/styles/*${1%-dark}*.so" >/dev/null ;;
    esac
}

has_wayland() {
    type sway wtype wl-copy grim jq >/dev/null 2>&1 &&
        compgen -G "$(qmake6 -query QT_INSTALL_PLUGINS)/platforms/libqwayland-*.so" >/dev/null
}

has_window_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# Starts a bus for assistive programs that reaches no program outside this desktop.
start_bus() {
    on_desktop dbus-daemon --session --nofork --print-address=3 3>"$home/bus" >build/tour/bus.log 2>&1 &
    started["message bus"]=$!
    await "a message bus" test -s "$home/bus"
    theme_settings+=(DBUS_SESSION_BUS_ADDRESS="$(<"$home/bus")" QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1)
}

# Without -noreset the server resets when its last client disconnects, which can be the one that looks for the window
# manager.
start_display() {
    Xvfb -displayfd 3 -noreset -screen 0 "$(screen_size)x24" -nolisten tcp 3>"$home/display" >build/tour/display.log 2>&1 &
    started[display]=$!
    await "a display" test -s "$home/display"
    DISPLAY=:$(<"$home/display")
    export DISPLAY
    on_desktop openbox --sm-disable --config-file "$PWD/tour/openbox.xml" >build/tour/window-manager.log 2>&1 &
    started["window manager"]=$!
    # Without a window manager all keys are lost without an error.
    await "a window manager" has_window_manager
    [[ $theme != heard ]] || start_bus
}

launch_program() {
    on_desktop "$program" >>build/tour/program.log 2>&1 </dev/null &
    started[program]=$!
}

start_program() {
    launch_program
    await_form
}

await_form() {
    await "the window Gradeloom X" window_in_front "Gradeloom X"
    # shellcheck disable=SC2034 # tour/hands.sh and the visits read it
    main=$front
    measure_menu_bar
}

has_ended() { ! kill -0 "$1" 2>/dev/null; }

# Ends the program with a command and checks its exit status.
end_program() { # COMMAND...
    local pid=${started[program]} status=0
    unset 'started[program]' # from here on its end is expected
    "$@"
    await "the program's end" has_ended "$pid"
    wait "$pid" || status=$?
    same "the program's exit status" 0 "$status"
}

# Quits the program as a user does.
quit_program() { end_program key ctrl+q; }
