# shellcheck shell=bash
# What fingers, desktops and systems do otherwise than expected. Each visit makes the class that it needs, and ends
# with the main window in front and the default scale.

slips_of_hands=(held_keys double_clicks stray_keys layouts composed_text menu_keys pastes copied_rows
    list_keys undo_after_slip)
slips_of_desktops=(dialog_windows notice_at_start signals file_limit server_end)

# A class of a test of 40 points, in place of the one before.
new_class() { # SCORE...
    local score
    key ctrl+r
    click_total
    type_text 40
    key Tab Delete
    for score; do enter "$score"; done
    at=-1
}

# Reads the number of papers by mouse: the way there by Tab is long. None at all leaves the field empty.
expect_papers() { # COUNT
    mouse_at 400 117 click 1
    key ctrl+a
    mark_clipboard
    key ctrl+c
    await "the number of papers on the clipboard" clipboard_is_not "$mark"
    same "the number of papers" "$1" "$(clipboard)"
    at=-1
}

# The scale field under all these tests; Tab selects its text, and a key would replace it.
go_to_amax() {
    at=-1
    go_to amax
}

expect_amax() { # TEXT
    at=-1
    expect_field amax "$1"
}

# By mouse, since Tab would come to a boundary that is off, and to its notice.
default_scale_again() {
    key ctrl+r
    click 591 225
}

# --- hands

# Holds keys down, with the server's repeats, and releases them in the opposite order.
hold() { # SECONDS KEY...
    local seconds=$1 name down=() up=()
    shift
    for name; do
        down+=(keydown "$name")
        up=(keyup "$name" "${up[@]}")
    done
    xdotool "${down[@]}" sleep "$seconds" "${up[@]}"
}

visit_held_keys() {
    step "keys that are held down"
    xset r rate 150 50
    new_class {1..12}
    hold 0.8 ctrl z
    expect_papers 11
    go_to Grade
    hold 0.8 space
    expect_papers 12
    go_to missed
    type_text 45
    hold 1.5 Return
    await_box "the notice that refuses 45"
    answer_box Return
    expect_papers 12
    # In a field a key held down repeats: so the server does make repeats, and the three above were tried.
    go_to missed
    hold 0.8 1
    mark_clipboard
    key ctrl+a ctrl+c
    await "what was typed on the clipboard" clipboard_is_not "$mark"
    [[ $(clipboard) == 11111* ]] || fail "a digit held down gave only \"$(clipboard)\""
    xset r rate
}

# Half a second lies between the two and the three clicks.
visit_double_clicks() {
    step "a double and a triple click on Grade"
    new_class
    mouse_at 220 153 click --repeat 2 --delay 60 1 sleep 0.5 click --repeat 3 --delay 60 1
    expect_papers 2
}

# Keys that are meant for a field do not answer a question that has come up meanwhile.
visit_stray_keys() {
    step "keys meant for a field while a box comes"
    local delay keys
    new_class 3 4 5
    for delay in 30 250; do
        for keys in "9 Tab Return" "9 Tab space" "Left Left Return"; do
            go_to_amax
            # shellcheck disable=SC2086
            xdotool key --delay "$delay" $keys
            await_box "the question after $keys"
            answer_box Escape
        done
    done
    expect_amax "${default_scale[2]}"
    expect_papers 3
    go_to missed
    xdotool key --delay 30 4 5 Return 3 Return
    await_box "the notice that refuses 45"
    answer_box Return
    expect_papers 3
    # A box that takes keys still takes no letters, and is answered without a mouse.
    go_to_amax
    key 9
    await_box "the question after 9"
    answer_box y Escape
    expect_papers 3
    go_to_amax
    key 9
    await_box "the question after 9"
    answer_box n Tab Return
    expect_amax 9
    default_scale_again
}

# --- keyboards

# Switches of the layout are no keys that could change a field.
visit_layouts() {
    step "switches of the keyboard layout in a scale field"
    local layout option keys
    new_class 3 4 5
    while read -r layout option keys; do
        setxkbmap -layout "$layout" -option "" -option "${option#none}"
        go_to_amax
        # shellcheck disable=SC2086
        hold 0 $keys
        expect_field amax "${default_scale[2]}"
    done <<<"us,de grp:alt_shift_toggle    Alt_L Shift_L
             us,de grp:alt_shift_toggle    Shift_L Alt_L
             us,de grp:ctrl_shift_toggle   Control_L Shift_L
             us,de grp:ctrl_shift_toggle   Shift_L Control_L
             us    lv5:ralt_switch         ISO_Level5_Shift
             us    none                    XF86AudioRaiseVolume
             jp    none                    Eisu_toggle
             jp    none                    Hiragana_Katakana
             kr    none                    Hangul"
    setxkbmap -layout us -option ""
    for keys in Escape F5; do
        go_to_amax
        key "$keys"
        await_box "the question after $keys"
        answer_box Escape
    done
    expect_papers 3
}

# A letter of several keys asks like any other, before it is in the field, and not before it is complete.
type_e_acute() { # KEY...
    new_class 3 4 5
    go_to_amax
    key "$@"
    await_box "the question after $*"
    answer_box Escape
    expect_amax "${default_scale[2]}"
    go_to_amax
    key "$@"
    await_box "the question after $*"
    answer_box alt+y
    expect_amax é
    default_scale_again
}

visit_composed_text() {
    step "dead keys and compose in a scale field"
    setxkbmap -layout us -variant intl
    type_e_acute dead_acute e
    setxkbmap -layout us -variant "" -option compose:rwin
    type_e_acute Multi_key e apostrophe
    setxkbmap -layout us -option ""
}

await_menu() { # WHAT KEY
    local before
    before=$(windows_shown)
    key "$2"
    await "$1" more_windows_than "$before"
    key Escape Escape
    await "the end of $1" windows_are "$before"
}

windows_are() { (($(windows_shown) == $1)); }

visit_menu_keys() {
    step "Alt, Super and F10"
    new_class
    await_menu "the File menu" alt+f
    enter 7
    expect_field lastmissed 7
    await_menu "the first menu" F10
    await_menu "the Edit menu" alt+e
    go_to missed
    type_text 5
    key super+7 alt+7 super+f Return
    expect_field lastmissed 5
}

# --- the clipboard

# A line end follows the text, as it does behind a cell of a spreadsheet.
put_on() { # primary|clipboard TEXT
    xclip -selection "$1" >/dev/null 2>&1 <<<"$2"
    await "the text to paste" holds "$1" "$2"
}

holds() { [[ $(timeout 5 xclip -selection "$1" -o 2>/dev/null) == "$2" ]]; }

paste_from_menu() {
    local before
    before=$(windows_shown)
    mouse_at 81 258 click 3
    await "the context menu" more_windows_than "$before"
    key p
    await "the end of the context menu" windows_are "$before"
}

visit_pastes() {
    step "pastes with line ends"
    local way
    for way in menu ctrl+v shift+Insert middle; do
        default_scale_again
        go_to_amax
        put_on clipboard $'\n12345'
        put_on primary $'\n12345'
        case $way in
            menu) paste_from_menu ;;
            middle) key Delete && mouse_at 81 258 click 2 ;;
            *) key "$way" ;;
        esac
        expect_amax 123
    done
    default_scale_again
    go_to_amax
    put_on clipboard 97
    paste_from_menu
    click_save_settings
    await "the saved scale" test -s "$preferences"
    same_lines "the lines of the saved scale" "$(printf '%s\n' "${default_scale[@]}")" "$(<"$preferences")"
    rm "$preferences"
}

visit_copied_rows() {
    step "rows copied from the list"
    new_class 3 4.5 40
    mouse_at 575 37 click 1
    key shift+Down shift+Down
    mark_clipboard
    key ctrl+c
    await "the rows on the clipboard" clipboard_is_not "$mark"
    same "the copied rows" $'1\t92.5\t%\n2\t88.75\t%\n3\t0\t%.' "$(clipboard && echo .)"
}

visit_list_keys() {
    step "keys in the list"
    local row
    new_class 3 4.5 40
    go_to ListBox1
    for row in Down=$'1\t92.5\t%' Down=$'2\t88.75\t%' End=$'3\t0\t%' Home=$'1\t92.5\t%'; do
        key "${row%%=*}"
        expect_copy "the row after ${row%%=*}" "${row#*=}"
    done
    at=-1
}

# --- slips taken back

# The first Ctrl+Z after a slip is meant for the slip and not for the last paper.
visit_undo_after_slip() {
    step "Ctrl+Z after a slip"
    new_class 1 2 3 4 5 6
    go_to_amax
    key 5
    await_box "the question after 5"
    answer_box Escape
    key ctrl+z
    key ctrl+z
    expect_papers 5
    go_to missed
    enter 45
    await_box "the notice that refuses 45"
    answer_box Return
    key ctrl+z
    key ctrl+z
    expect_papers 4
    go_to missed
    enter 45
    await_box "the notice that refuses 45"
    answer_box Return
    key Tab
    key ctrl+z
    expect_papers 3
}

# --- windows and the system

replace_question() { in_front && ((front != main && front != dialog)); }

visit_dialog_windows() {
    step "the window in front after a dialog"
    local presenter dialog
    new_class 3 4 5
    echo old >"$home/replaced"
    open_with ctrl+t Presenter
    presenter=$front
    xdotool windowactivate "$main"
    await_main
    for _ in {1..20}; do
        open_with ctrl+e "Save your file"
        dialog=$front
        answer_path "$home/replaced"
        await "the question before a file is replaced" replace_question
        key alt+y
        await_main
    done
    xdotool windowactivate "$presenter"
    await "the window Presenter" window_in_front Presenter
    key ctrl+w
    await_main
    same_lines "the exported lines" "$(printf '%s\n' 92.5 90 87.5)" "$(<"$home/replaced")"
}

break_preferences() {
    mkdir -p "${preferences%/*}"
    printf '%s\n' 100 98 97 80 "${default_scale[@]:4}" >"$preferences"
}

# Which window is the main one is not known while a notice is in front of it from the start.
launch_into_notice() {
    break_preferences
    main=0
    launch_program
    await_box "the repair notice"
}

visit_notice_at_start() {
    step "a notice at the start"
    quit_program
    launch_into_notice
    press_on_box Return
    await_form
    type_text 40
    key ctrl+a
    at=0
    expect_field total 40
    quit_program
    rm "$preferences"
    start_program
}

visit_signals() {
    step "signals"
    local signal saved
    for signal in TERM HUP INT; do
        click_save_settings
        await "the saved scale" test -s "$preferences"
        end_by "$signal"
        same_lines "the lines of the saved scale" "$(printf '%s\n' "${default_scale[@]}")" "$(<"$preferences")"
        launch_into_notice
        saved=$(<"$preferences")
        end_by "$signal"
        same_lines "the lines of the scale that was not saved" "$saved" "$(<"$preferences")"
        rm "$preferences"
        start_program
        open_with ctrl+o "Select a Grading Scale"
        end_by "$signal"
        start_program
    done
}

end_by() { end_program kill -s "$1" "${started[program]}"; } # SIGNAL

limit_files() { prlimit --pid "${started[program]}" --fsize="$1":; }

visit_file_limit() {
    step "a limit on the size of files"
    limit_files 0
    click_save_settings
    await_box "the notice that the scale was not saved"
    answer_box Return
    [[ ! -e $preferences ]] || fail "a scale was saved in spite of the limit"
    limit_files unlimited
    click_save_settings
    await "the saved scale" test -s "$preferences"
    rm "$preferences"
}

second_window() {
    DISPLAY=:$(<"$home/second") xdotool search --onlyvisible --name "Gradeloom X" >/dev/null 2>&1
}

visit_server_end() {
    step "the end of the X server"
    local server second status=0
    Xvfb -displayfd 3 -noreset -nolisten tcp 3>"$home/second" >build/tour/second-display.log 2>&1 &
    server=$!
    started["second display"]=$server
    await "a second display" test -s "$home/second"
    (DISPLAY=:$(<"$home/second") on_desktop "$program") >>build/tour/program.log 2>&1 </dev/null &
    second=$!
    started["second program"]=$second
    await "a window on the second display" second_window
    unset 'started["second display"]' 'started["second program"]'
    kill -KILL "$server"
    await "the program's end" has_ended "$second"
    wait "$second" || status=$?
    same "the program's exit status" 1 "$status"
}
