# shellcheck shell=bash
# What fingers do by mistake or in a hurry. Each visit makes the class that it needs, and ends with the main window in
# front and the default scale.

# Set by the other files of the tour: default_scale, mark.

# A class of a test of 40 points, in place of the one before.
new_class() { # SCORE...
    local score
    key ctrl+r
    click_total
    type_text 40
    key Tab Delete
    for score; do enter "$score"; done
}

# --- hands

# Holds keys down while the server repeats them, and releases them in reverse order.
hold() { # SECONDS KEY...
    local seconds=$1 name down=() up=()
    shift
    for name; do
        down+=(keydown "$name")
        up=(keyup "$name" "${up[@]}")
    done
    xdotool "${down[@]}" sleep "$seconds" "${up[@]}"
}

expect_repeats() {
    key ctrl+a
    mark_clipboard
    key ctrl+c
    await "what was typed on the clipboard" clipboard_is_not "$mark"
    [[ $(clipboard) == 111* ]] || fail "a digit held down gave only \"$(clipboard)\""
}

visit_held_keys() {
    step "keys that are held down"
    xset r rate 150 50
    new_class {1..12}
    hold 0.8 ctrl z
    expect_papers 11
    go_to missed
    type_text 45
    hold 1.5 Return
    await_box "the notice that refuses 45"
    answer_box Return
    expect_papers 11
    # A key held in a field does repeat, which proves that the server made repeats above.
    go_to missed
    hold 0.8 1
    expect_repeats
    xset r rate
}

# Half a second lies between the double and the triple click. Of ten clicks 270 ms apart every second one acts: the
# double-click interval is 400 ms, so there are 130 ms of room for jitter on both sides.
visit_many_clicks() {
    step "a double, a triple click and ten brisk ones on Grade"
    new_class
    mouse_at 220 153 click --repeat 2 --delay 60 1 sleep 0.5 click --repeat 3 --delay 60 1
    expect_papers 2
    new_class
    mouse_at 220 153 sleep 0.5 click --repeat 10 --delay 270 1
    expect_papers 5
}

# Keys meant for a field do not answer a question that comes up meanwhile.
visit_stray_keys() {
    step "keys meant for a field while a box comes"
    local delay keys
    new_class 3 4 5
    for delay in 30 250; do
        for keys in "9 Tab Return" "9 Tab space" "Left Left Return"; do
            go_to amax
            # shellcheck disable=SC2086 # several words
            xdotool key --delay "$delay" $keys
            await_box "the question after $keys"
            answer_box Escape
        done
    done
    expect_field amax "${default_scale[2]}"
    expect_papers 3
    go_to missed
    xdotool key --delay 30 4 5 Return 3 Return
    await_box "the notice that refuses 45"
    answer_box Return
    expect_papers 3
}

# --- keyboards

# Switching the keyboard layout is not typing.
visit_layouts() {
    step "switches of the keyboard layout in a scale field"
    local layout option keys
    new_class 3 4 5
    while read -r layout option keys; do
        setxkbmap -layout "$layout" -option "" -option "${option#none}"
        go_to amax
        # shellcheck disable=SC2086 # several words
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
    expect_papers 3
}

# A letter made of several keys brings the question once it is complete and before it is in the field.
type_e_acute() { # KEY...
    new_class 3 4 5
    go_to amax
    key "$@"
    await_box "the question after $*"
    answer_box Escape
    expect_field amax "${default_scale[2]}"
}

visit_composed_text() {
    step "dead keys and compose in a scale field"
    setxkbmap -layout us -variant intl
    type_e_acute dead_acute e
    setxkbmap -layout us -variant "" -option compose:rwin
    type_e_acute Multi_key e apostrophe
    setxkbmap -layout us -option ""
}

# A menu that is left without a choice gives the keys back to the field, however it is left.
visit_left_menus() {
    step "menus that are left, and a tap on Alt"
    local opening closing papers=0
    new_class
    while IFS=: read -r opening closing; do
        click missed
        # shellcheck disable=SC2086 # several words
        {
            opens "the menu of $opening" $opening
            closes "the menu of $opening by $closing" $closing
        }
        enter 3
        expect_papers $((++papers))
    done <<<"key alt+e:key Escape
             click_edit:key Escape
             click_edit:click_edit
             click_edit:mouse_at 30 150 click 1
             key F10:key F10
             key F10:key Right Escape"
    click missed
    key Alt_L
    enter 3
    expect_papers $((++papers))
}

# --- the mode

# The program writes into Number Correct after each paper; the next number typed there replaces that text.
visit_number_correct() {
    step "Use Number Correct in the middle of a class"
    new_class 4
    xclip -selection primary >/dev/null 2>&1 <<<"a selection"
    click checkcorrect
    click correct
    enter 38
    expect_field percentage 95
    same "the selection of another program" "a selection" "$(timeout 5 xclip -selection primary -o)"
    new_class
    click checkcorrect
    click correct
    enter 38
    expect_result percentage 100
    click correct
    enter 38
    expect_result percentage 100
}

# --- the list

papers_in_list=(3 4.5 40 5 6 7)
rows_in_list=($'1\t92.5\t%' $'2\t88.75\t%' $'3\t0\t%' $'4\t87.5\t%' $'5\t85\t%' $'6\t82.5\t%')

expect_rows() { # WHAT ROW...
    local row rows=()
    for row in "${@:2}"; do rows+=("${rows_in_list[row - 1]}"); done
    expect_copy "the rows by $1" "$(printf '%s\n' "${rows[@]}")"
}

visit_list_keys() {
    step "keys in the list"
    local keys rows
    new_class "${papers_in_list[@]}"
    go_to ListBox1
    while read -r keys rows; do
        # shellcheck disable=SC2086 # several words
        key "$keys" && expect_rows "$keys" $rows
    done <<<"Down 1
             Down 2
             Home 1
             End 6
             shift+Up 5 6
             shift+Home 1 2 3 4 5 6"
}

at_row() { mouse_at 575 $((21 + 16 * $1)) "${@:2}"; } # ROW WHAT...

visit_list_mouse() {
    step "rows selected by mouse"
    new_class "${papers_in_list[@]}"
    at_row 6 click 1 keydown shift
    at_row 4 click 1 keyup shift
    expect_rows "a click above with Shift" 4 5 6
    at_row 5 mousedown 1
    at_row 4 sleep 0.05
    at_row 2 sleep 0.05 mouseup 1
    expect_rows "an upward drag" 2 3 4 5
    at_row 6 click 1 keydown ctrl
    at_row 2 click 1 keyup ctrl
    expect_rows "two clicks with Ctrl" 2 6
}
