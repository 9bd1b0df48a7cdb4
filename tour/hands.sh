# shellcheck shell=bash
# A teacher's hands and eyes: keys, clicks, and what can be read off the windows.

# The fields and buttons of the main window in the order in which Tab visits them.
tab_order=(total missed correct Grade percentage lettergrade lastmissed aplusmax aplusmin SaveScale amax amin
    aminusmax aminusmin bplusmax bplusmin bmax bmin bminusmax bminusmin cplusmax cplusmin cmax cmin cminusmax
    cminusmin dplusmax dplusmin dmax dmin dminusmax dminusmin Default checkcorrect agrade bgrade cgrade dgrade
    fgrade ListBox1 numstudents EditField1 SaveSettings)

scale_fields=(aplusmax aplusmin amax amin aminusmax aminusmin bplusmax bplusmin bmax bmin bminusmax bminusmin
    cplusmax cplusmin cmax cmin cminusmax cminusmin dplusmax dplusmin dmax dmin dminusmax dminusmin)

same() { # WHAT EXPECTED SEEN
    [[ $2 == "$3" ]] || fail "$1: expected \"$2\", saw \"$3\""
}

same_lines() { # WHAT EXPECTED SEEN
    diff <(echo "$2") <(echo "$3") >&2 || fail "$1 differ: < is expected, > was seen"
}

# A repeat that the server makes while a key is held has the time stamp of the release before it. So each key goes
# down some milliseconds after the last one went up: no hand is faster.
key() { xdotool key --delay 4 "$@"; }

type_text() { xdotool type --delay 4 "$1"; }

enter() { xdotool type --delay 4 --args 1 "$1" key --delay 4 Return; }

# --- windows

in_front() {
    front=$(xdotool getactivewindow 2>/dev/null) && ((front != 0))
}

title_of_front() { title=$(xdotool getwindowname "$front" 2>/dev/null); }

window_in_front() { # TITLE
    in_front && title_of_front && [[ $title == "$1" ]]
}

is_front() { in_front && ((front == $1)); }

# A message box is a window of the program's that has no title of its own.
box_in_front() {
    in_front && ((front != main)) && title_of_front && [[ $title == "" || $title == gradeloom ]] &&
        [[ $(xdotool getwindowpid "$front" 2>/dev/null) == "${started[program]}" ]]
}

await_box() { # WHAT
    await "$1" box_in_front
    box=$front
}

# Presses keys on the box in front, and only then: a box takes no key before the keyboard has been quiet for half a
# second. Nothing on the screen shows when that is over, so this is the one place where the tour waits for a time.
press_on_box() { # KEY...
    sleep 0.6
    is_front "$box" || fail "the box was gone before it was answered"
    key "$@"
}

answer_box() { # KEY...
    press_on_box "$@"
    await_main
}

await_main() { await "the main window in front again" is_front "$main"; }

# Opens something with a key and waits for the window of that title.
open_with() { # KEY TITLE
    key "$1"
    await "the window $2" window_in_front "$2"
}

answer_path() { # PATH
    key ctrl+a
    enter "$1"
}

# The file is written atomically, but the dialog is gone a moment earlier.
save_as() { # PATH
    answer_path "$1"
    await "the file ${1##*/}" test -s "$1"
    await_main
}

# --- the mouse

measure() { # WINDOW
    eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(WIDTH|HEIGHT)=[0-9]+$')"
}

# The form is 705 by 438; what is above it is the menu bar.
measure_menu_bar() {
    measure "$main"
    same "the main window's width" 705 "$WIDTH"
    menu_bar=$((HEIGHT - 438))
    ((menu_bar >= 10 && menu_bar <= 60)) || fail "the main window is $HEIGHT high: no room for form and menu bar"
}

# Does something with the mouse at a point of the main window's form.
mouse_at() { # X Y WHAT...
    xdotool mousemove --window "$main" "$1" $((menu_bar + $2)) "${@:3}"
}

click() { mouse_at "$1" "$2" click 1; }

click_total() { click 170 17 && at=0; }
click_missed() { click 169 48; }
click_correct() { click 169 81; }
click_number_correct() { click 20 121; }
click_save_scale() { click 596 295; }
click_save_settings() { click 596 370; }

windows_shown() { xdotool search --onlyvisible --pid "${started[program]}" 2>/dev/null | wc -l; }

more_windows_than() { (($(windows_shown) > $1)); }

# Opens the Edit menu by mouse and goes on by keys: Down is its first command, Up its last.
edit_menu() { # KEY
    local before
    before=$(windows_shown)
    xdotool mousemove --window "$main" 55 $((menu_bar / 2)) click 1
    await "the Edit menu" more_windows_than "$before"
    key "$1" Return
}

# --- reading fields

index_of() { # NAME
    for ((index = 0; index < ${#tab_order[@]}; index++)); do
        [[ ${tab_order[index]} != "$1" ]] || return 0
    done
    fail "no field is called $1"
}

# Moves the focus with Tab from where it is, or from the first field.
go_to() { # NAME
    index_of "$1"
    ((at >= 0 && at <= index)) || click_total
    local tabs=()
    for (( ; at < index; ++at)); do tabs+=(Tab); done
    ((${#tabs[@]} == 0)) || key "${tabs[@]}"
}

clipboard() { timeout 5 xclip -selection clipboard -o 2>/dev/null; }
clipboard_is() { [[ $(clipboard) == "$1" ]]; }
clipboard_is_not() { [[ $(clipboard) != "$1" ]]; }

to_clipboard() { xclip -selection clipboard >/dev/null 2>&1; }

# Puts a mark on the clipboard, by which a copy is noticed.
mark_clipboard() {
    mark="nothing was copied $((++marks))"
    printf %s "$mark" | to_clipboard
    await "the mark on the clipboard" clipboard_is "$mark"
}

expect_field() { # NAME TEXT
    go_to "$1"
    mark_clipboard
    key ctrl+c
    await "the text of $1 on the clipboard" clipboard_is_not "$mark"
    same "$1" "$2" "$(clipboard)"
}

expect_scale() { # 24 numbers
    local field
    at=-1
    for field in "${scale_fields[@]}"; do
        expect_field "$field" "$1"
        shift
    done
}

# --- pictures

photograph() { import -window "$1" "$2"; } # WINDOW FILE

photograph_screen() { [[ -z ${DISPLAY:-} ]] || import -window root build/tour/failure.png; }

# Leaves a picture of a window. It is done when two shots in a row are alike, show more than an empty surface and,
# if a shot is named, differ from that one.
picture() { # NAME WINDOW [UNLIKE]
    local file=build/tour/$theme/$1.png
    shot=
    await "a steady picture of $1" steady "$file" "$2" "${3:-none}"
}

steady() { # FILE WINDOW UNLIKE
    local last=$shot
    photograph "$2" "$1" || return 1
    shot=$(identify -format '%# %k' "$1")
    [[ $shot == "$last" && $shot != "$3" ]] && ((${shot#* } > 8))
}

# How many pixels of a picture have a colour.
count_color() { # FILE COLOR
    convert "$1" -depth 8 -fill black +opaque "rgb($2)" -fill white -opaque "rgb($2)" -format '%[fx:round(mean*w*h)]' info:
}
