# shellcheck shell=bash
# A Wayland desktop, with hands and eyes for it. Its functions replace those of the same name, so that the same visits
# can be played.

# Set by the other files of the tour: home, main, menu_bar.

# --- the desktop

sway_does() { on_desktop swaymsg --quiet "$*"; }

seat_has() { # KIND
    (on_desktop swaymsg --raw --type get_inputs) | jq --exit-status "any(.type == \"$1\")" >/dev/null
}

# The compositor refuses to run as root, so it runs as nobody, with a folder for its sockets. It has neither screen nor
# devices: keyboard and mouse are programs. They stay plugged in, since the first key of a new keyboard can get lost.
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
    # shellcheck disable=SC2034 # tour/desktop.sh ends it
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

# An open menu is not in the list of windows here. There is no need to wait: click and keys arrive in order.
edit_menu() { # KEY
    mouse_at 55 $((-menu_bar / 2)) click 1
    key "$1" Return
}

to_clipboard() { (on_desktop wl-copy >/dev/null 2>&1); }

clipboard() { (on_desktop timeout 5 wl-paste --no-newline 2>/dev/null); }

# --- the eyes

# Reads number, place, size and title of the window in front or of the window with a number.
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

# --- a visit for Wayland alone, where the program itself repeats a held key

visit_held_key() {
    step "a key that is held down"
    new_class 3 4 5
    press -M ctrl -P z -s 1000 -p z -m ctrl
    expect_papers 2
    go_to missed
    press -P 1 -s 1000 -p 1
    expect_repeats
}
