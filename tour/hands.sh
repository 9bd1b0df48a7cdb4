# shellcheck shell=bash
# A teacher's hands and eyes: keys, clicks, windows, fields, pictures. Needs tour/desktop.sh.

# Set by its caller and by tour/desktop.sh: theme, main.
declare -A started

# --- the form, as its table states it

declare -A middle=() # of each control of the main window: "X Y"
tab_order=()         # the fields and buttons as Tab visits them

read_form() {
    local name x y kind
    while read -r name x y kind; do
        middle[$name]="$x $y"
        [[ $kind == other ]] || tab_order+=("$name")
    done < <(awk -F, '
        !/^(CONTROL|CHILD|BAND_ROW)\(/ { next }
        function print_row(name, left, top, width, height, kind) {
            print name, int(left + width / 2), int(top + height / 2), kind
        }
        { gsub(/"[^"]*"|[ )]/, "") }
        /^BAND_ROW/ { print_row($2, $3, $4, $5, $6, "stop"); print_row($7, $8, $9, $10, $11, "stop") }
        !/^BAND_ROW/ {
            is_stop = $2 ~ /^(TextField|PushButton|CheckBox|Listbox)$/ && $9 !~ /^hidden/
            print_row($3, $5, $6, $7, $8, is_stop ? "stop" : "other")
        }' frame/mainscreen.def)
}

read_form

# --- keys

# The server's repeats of a held key have the time stamp of the release before them. So each key goes down some
# milliseconds after the last one went up, as under a real hand.
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

# A message box is a window of the program without a title.
box_in_front() {
    in_front && ((front != main)) && title_of_front && [[ $title == "" || $title == gradeloom ]] &&
        [[ $(xdotool getwindowpid "$front" 2>/dev/null) == "${started[program]}" ]]
}

await_box() { # WHAT
    await "$1" box_in_front
    box=$front
}

# A box ignores keys until the keyboard has been quiet for half a second. Nothing on the screen shows when that is
# over, so this waits for a fixed time.
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

# Opens a window with a key and waits for its title.
open_with() { # KEY TITLE
    key "$1"
    await "the window $2" window_in_front "$2"
}

answer_path() { # PATH
    key ctrl+a
    enter "$1"
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

# Moves the mouse to a point of the main window's form and acts there.
mouse_at() { # X Y WHAT...
    xdotool mousemove --window "$main" "$1" $((menu_bar + $2)) "${@:3}"
}

# shellcheck disable=SC2086 # two numbers
click() { mouse_at ${middle[$1]} click 1; } # CONTROL

click_total() { click total; }
click_save_settings() { click PushButton4; }

windows_shown() { { xdotool search --onlyvisible --pid "${started[program]}" 2>/dev/null || true; } | wc -l; }

more_windows_than() { (($(windows_shown) > $1)); }

windows_are() { (($(windows_shown) == $1)); }

# A menu, and whatever else opens and closes without coming to the front.
opens() { # WHAT COMMAND...
    before=$(windows_shown)
    "${@:2}"
    await "$1" more_windows_than "$before"
}

closes() { # WHAT COMMAND...
    "${@:2}"
    await "the end of $1" windows_are "$before"
}

click_edit() { mouse_at 55 $((-menu_bar / 2)) click 1; }

# Chooses from the Edit menu: the key Down gives its first command, Up its last.
edit_menu() { # KEY
    opens "the Edit menu" click_edit
    key "$1" Return
}

# --- reading fields

index_of() { # NAME
    for ((index = 0; index < ${#tab_order[@]}; index++)); do
        [[ ${tab_order[index]} != "$1" ]] || return 0
    done
    fail "no field is called $1"
}

# Tabs from the first field to a control; in a field Tab selects the text.
go_to() { # NAME
    index_of "$1"
    click_total
    local tabs=()
    for (( ; index > 0; --index)); do tabs+=(Tab); done
    ((${#tabs[@]} == 0)) || key "${tabs[@]}"
}

marks=0

clipboard() { timeout 5 xclip -selection clipboard -o 2>/dev/null; }
clipboard_is() { [[ $(clipboard) == "$1" ]]; }
clipboard_is_not() { [[ $(clipboard) != "$1" ]]; }

to_clipboard() { xclip -selection clipboard >/dev/null 2>&1; }

# Puts a text on the clipboard that is no longer there after a copy.
mark_clipboard() {
    mark="nothing was copied $((++marks))"
    printf %s "$mark" | to_clipboard
    await "the mark on the clipboard" clipboard_is "$mark"
}

# Copies what is selected.
expect_copy() { # WHAT EXPECTED
    mark_clipboard
    key ctrl+c
    await "$1 on the clipboard" clipboard_is_not "$mark"
    same "$1" "$2" "$(clipboard)"
}

expect_field() { # NAME TEXT
    go_to "$1"
    [[ $1 != total ]] || key ctrl+a
    expect_copy "$1" "$2"
}

# Reads a result by mouse: the way there by Tab is long. An empty one gives nothing to copy.
expect_result() { # NAME TEXT
    click "$1"
    key ctrl+a
    expect_copy "$1" "$2"
}

expect_papers() { expect_result numstudents "$1"; } # COUNT

# --- pictures

photograph() { import -window "$1" "$2"; } # WINDOW FILE

photograph_screen() { [[ -z ${DISPLAY:-} ]] || import -window root build/tour/failure.png; }

# Saves a picture of a window once two shots in a row are alike, show more than an empty surface and differ from the
# shot UNLIKE.
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

# Prints how many pixels of a picture have a colour.
count_color() { # FILE COLOR
    convert "$1" -depth 8 -fill black +opaque "rgb($2)" -fill white -opaque "rgb($2)" -format '%[fx:round(mean*w*h)]' info:
}
