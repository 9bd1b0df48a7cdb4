# shellcheck shell=bash
# A Wayland desktop in place of the other, and the hands and eyes for it: what these functions do for the visits is
# the same, so that the same visits are played.

# --- the desktop

sway_does() { on_desktop swaymsg --quiet "$*"; }

seat_has() { # KIND
    (on_desktop swaymsg --raw --type get_inputs) | jq --exit-status "any(.type == \"$1\")" >/dev/null
}

# The compositor refuses to run as root, so it gets a folder for its sockets that is another user's. It shows
# nothing on any screen and has no devices: keyboard and mouse are programs of their own. They stay for the whole
# time, since the first key on a keyboard that was just plugged in can come before anybody listens to it.
start_display() {
    local sockets=$home/sway as_nobody=()
    mkdir -m 700 "$sockets"
    if ((EUID == 0)); then
        chmod a+x "$home"
        chown 65534:65534 "$sockets"
        as_nobody=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    fi
    export DISPLAY=
    theme_settings+=(QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY="$sockets/wayland-1" SWAYSOCK="$sockets/control")
    on_desktop "${as_nobody[@]}" env -u WAYLAND_DISPLAY XDG_RUNTIME_DIR="$sockets" WLR_BACKENDS=headless \
        WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman LIBSEAT_BACKEND=noop sway --config /dev/null \
        >build/tour/compositor.log 2>&1 </dev/null &
    started["display"]=$!
    await "a compositor" test -S "$sockets/control" -a -S "$sockets/wayland-1"
    (sway_does output HEADLESS-1 resolution "$(screen_size)") || fail "the compositor has no screen"
    on_desktop wtype -s 3600000 >build/tour/keyboard.log 2>&1 &
    started["keyboard"]=$!
    on_desktop tour/pointer >build/tour/mouse.log 2>&1 &
    started["mouse"]=$!
    await "a keyboard" seat_has keyboard
    await "a mouse" seat_has pointer
}

# --- the hands

press() { (on_desktop timeout 20 wtype "$@"); }

key() {
    local name presses=()
    for name; do
        case $name in
            *+*) presses+=(-M "${name%+*}" -k "${name#*+}" -m "${name%+*}") ;;
            *) presses+=(-k "$name") ;;
        esac
    done
    press "${presses[@]}"
}

type_text() { press "$1"; }

enter() { press "$1" -k Return; }

mouse_at() { # X Y click BUTTON
    look_at "$main"
    (sway_does "seat - cursor set $((LEFT + $1)) $((TOP + menu_bar + $2))" \; \
        "seat - cursor press button$4" \; "seat - cursor release button$4")
}

# An open menu is no window here that could be waited for. The program gets click and keys in their order.
edit_menu() { # KEY
    mouse_at 55 $((-menu_bar / 2)) click 1
    key "$1" Return
}

to_clipboard() { (on_desktop wl-copy >/dev/null 2>&1); }

clipboard() { (on_desktop timeout 5 wl-paste --no-newline 2>/dev/null); }

# --- the eyes

# The number, place, size and title of a window, which is the one in front or has the number.
look_at() { # front|WINDOW
    local seen which=.focused
    [[ $1 == front ]] || which=".id == $1"
    seen=$( (on_desktop swaymsg --raw --type get_tree) | jq --raw-output "recurse(.nodes[], .floating_nodes[]) |
        select(.pid and $which) | [.id, .rect.x + .window_rect.x, .rect.y + .window_rect.y, .window_rect.width,
        .window_rect.height, .name] | join(\" \")") && [[ -n $seen ]] || return 1
    read -r window LEFT TOP WIDTH HEIGHT title <<<"$seen"
}

in_front() { look_at front && front=$window; }

title_of_front() { in_front; }

box_in_front() { in_front && ((front != main)) && [[ $title == gradeloom ]]; }

measure() { look_at "$1"; }

photograph() { # WINDOW FILE
    look_at "$1" && (on_desktop grim -g "$LEFT,$TOP ${WIDTH}x$HEIGHT" "$2")
}

photograph_screen() { (on_desktop grim build/tour/failure.png); }

# --- a visit for this desktop alone, on which the program makes the repeats of a key itself

visit_held_key() {
    step "a key that is held down"
    new_class 3 4 5
    press -M ctrl -P z -s 1000 -p z -m ctrl
    expect_papers 2
    go_to missed
    press -P 1 -s 1000 -p 1
    mark_clipboard
    key ctrl+a ctrl+c
    await "what was typed on the clipboard" clipboard_is_not "$mark"
    [[ $(clipboard) == 111* ]] || fail "a digit held down gave only \"$(clipboard)\""
}
