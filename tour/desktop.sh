# shellcheck shell=bash
# A desktop of the tour's own: a display, a window manager, and an empty home that is deleted at the end.

declare -A started=() # the numbers of the processes that run, by what they are
part_start=0 # the second in which this part of the tour began
home=
preferences= # the scale file that is read at the start

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

# await WHAT CONDITION...: waits for a condition and never for a time; one that does not come is a failure.
await() {
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
    for process in program "bell watch" "window manager" keyboard mouse display "second program" "second display" "message bus"; do
        [[ -n ${started[$process]:-} ]] || continue
        kill "${started[$process]}" 2>/dev/null || true
        wait "${started[$process]}" 2>/dev/null || true
    done
    started=()
    [[ -z $home ]] || rm -rf "$home"
    home=
    unset DISPLAY
}

# Everything on the desktop runs with this environment and nothing of the caller's: no printers, no session bus.
# It takes the place of the background process that calls it, so that $! is the program's own number. The shell has
# such a process ignore an interrupt; a program that is started by hand does not.
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
    theme_settings=(XDG_CURRENT_DESKTOP=none)
    case $theme in
        dark)
            theme_settings=(XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 KDE_FULL_SESSION=true)
            cp tour/dark-colours "$home/.config/kdeglobals"
            ;;
        adwaita* | breeze) theme_settings+=(QT_STYLE_OVERRIDE="$theme") ;;
        gtk3 | gnome) theme_settings+=(QT_QPA_PLATFORMTHEME="$theme") ;;
    esac
}

screen_size() { if [[ $theme == small ]]; then echo 1024x600; else echo 1280x1024; fi; }

# Whether a desktop's style is installed; that of the toolkit's own always is.
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

# The bus over which assistive programs talk to this desktop's program and to no other.
start_bus() {
    on_desktop dbus-daemon --session --nofork --print-address=3 3>"$home/bus" >build/tour/bus.log 2>&1 &
    started["message bus"]=$!
    await "a message bus" test -s "$home/bus"
    theme_settings+=(DBUS_SESSION_BUS_ADDRESS="$(<"$home/bus")" QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1)
}

# Without -noreset the server starts anew when its last client leaves, and that can be the one that only looks
# whether the window manager is there yet.
start_display() {
    Xvfb -displayfd 3 -noreset -screen 0 "$(screen_size)x24" -nolisten tcp 3>"$home/display" >build/tour/display.log 2>&1 &
    started[display]=$!
    await "a display" test -s "$home/display"
    DISPLAY=:$(<"$home/display")
    export DISPLAY
    on_desktop openbox --sm-disable --config-file "$PWD/tour/openbox.xml" >build/tour/window-manager.log 2>&1 &
    started["window manager"]=$!
    # Without a window manager every key would be lost in silence.
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
    main=$front
    measure_menu_bar
}

has_ended() { ! kill -0 "$1" 2>/dev/null; }

# Ends the program with a command and looks at its exit status.
end_program() { # COMMAND...
    local pid=${started[program]} status=0
    unset 'started[program]' # its end is no failure any more
    "$@"
    await "the program's end" has_ended "$pid"
    wait "$pid" || status=$?
    same "the program's exit status" 0 "$status"
}

# Quits the program as a user does.
quit_program() { end_program key ctrl+q; }
