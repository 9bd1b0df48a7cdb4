# shellcheck shell=bash
# What desktops and the system do to the program. Each visit ends with the main window in front and the default scale.

# Set by the other files of the tour: default_scale, theme, home, preferences, main, front, menu_bar.
declare -A started

# --- screens and fonts

visit_small_screen() {
    step "a Presenter that is higher than the screen"
    local presenter
    open_with ctrl+t Presenter
    presenter=$front
    measure "$presenter"
    same "the width of form and scroll bar" $((631 + 14)) "$WIDTH"
    ((HEIGHT < 600)) || fail "a window $HEIGHT high on a screen of 600"
    enter 105
    xdotool mousemove --window "$presenter" 300 300 click 1
    key End
    expect_copy "the row after End" $'-70\t33.33333'
    picture presenter-end "$presenter"
    (($(count_color "build/tour/$theme/presenter-end.png" 20,90,160) > 1000)) ||
        fail "the chosen last row is out of sight"
    key ctrl+w
    await_main
}

# Whether a part of a picture has a dark pixel: on these forms only texts do.
has_ink() { # FILE GEOMETRY
    [[ $(convert "build/tour/$theme/$1.png" -crop "$2" -colorspace gray -format '%[fx:minima < 0.4]' info:) == 1 ]]
}

# The title of the scale ends above its first label. Of the about window there is a picture to look at.
visit_large_font() {
    step "a desktop font of 20 points"
    picture mainscreen "$main"
    ! has_ink mainscreen "38x20+8+$((menu_bar + 182))" || fail "the title of the scale runs into its labels"
    opens "the Edit menu" key alt+e
    key Up Return
    await "the window About Gradeloom" window_in_front "About Gradeloom"
    picture about "$front"
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

# The main window is only known once the notice in front of it is closed.
launch_into_notice() {
    mkdir -p "${preferences%/*}"
    printf '%s\n' 100 98 97 80 "${default_scale[@]:4}" >"$preferences"
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
    local signal
    quit_program
    for signal in TERM HUP INT; do
        launch_into_notice
        end_by "$signal"
        rm "$preferences"
        start_program
        open_with ctrl+o "Select a Grading Scale"
        end_by "$signal"
    done
    start_program
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
