# shellcheck shell=bash
# What desktops and systems do otherwise than expected. Each visit ends with the main window in front and the default
# scale.

declare default_scale theme home preferences main front shot menu_bar # set by the other files of the tour

# --- screens and fonts

# The first column's row at the bottom of the Presenter, where the chart ends after all scrolling is done: the form
# is 646 high, and the row is 20 above its end.
expect_last_row() { # WHAT
    xdotool mousemove --window "$presenter" 50 $((HEIGHT - 20)) click 1
    expect_copy "the last row by $1" $'-35\t66.66667'
}

# Whether a picture has a horizontal black line, as only the frame around the focus does.
framed() { # FILE WIDTH GEOMETRY
    [[ $(convert "$1" -crop "$3" +repage -threshold 5% -negate -morphology Erode "rectangle:$2x1" \
        -format '%[fx:maxima]' info:) == 1 ]]
}

visit_small_screen() {
    step "a Presenter that is higher than the screen"
    local presenter file=build/tour/$theme/presenter
    open_with ctrl+t Presenter
    presenter=$front
    measure "$presenter"
    same "the width of form and scroll bar" $((631 + 14)) "$WIDTH"
    ((HEIGHT < 600)) || fail "a window $HEIGHT high on a screen of 600"
    enter 105
    xdotool mousemove --window "$presenter" 300 300 click --repeat 10 --delay 10 5
    expect_last_row "the wheel"
    key shift+Tab Next Next
    expect_last_row "Page Down"
    key Tab End
    expect_copy "the row after End" $'-70\t33.33333'
    picture presenter-end "$presenter"
    (($(count_color "$file-end.png" 20,90,160) > 1000)) || fail "the chosen last row is out of sight"
    key shift+Tab shift+Tab
    xdotool mousemove --window "$presenter" 300 300 click --repeat 10 --delay 10 5
    key shift+Tab
    picture presenter-go "$presenter" "$shot"
    framed "$file-go.png" 60 "100x40+245+$menu_bar" || fail "no frame around the focused button"
    key Tab
    type_text 7
    key ctrl+a
    expect_copy "the field, which Tab comes back to" 7
    key ctrl+w
    await_main
}

# Whether a part of a picture has a dark pixel, as only texts have on these forms.
has_ink() { # FILE GEOMETRY
    [[ $(convert "build/tour/$theme/$1.png" -crop "$2" +repage -format '%[fx:minima < 0.4]' info:) == 1 ]]
}

# Beside the first label of the scale, and inside the ends of the about window's button, nothing is written.
visit_large_font() {
    step "a desktop font of 20 points"
    picture mainscreen "$main"
    ! has_ink mainscreen "38x20+8+$((menu_bar + 182))" || fail "the title of the scale runs into its labels"
    edit_menu Up
    await "the window About Gradeloom" window_in_front "About Gradeloom"
    picture about "$front"
    ! has_ink about 4x40+43+125 || fail "the start of the button's caption is cut"
    ! has_ink about 4x40+193+125 || fail "the end of the button's caption is cut"
    key ctrl+w
    await_main
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
