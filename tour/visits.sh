# shellcheck shell=bash
# The places that the tour goes to. Each visit starts and ends with the main window in front.

default_scale=(100 98 97 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 60)
# The default scale with 80 as the lowest A, repaired: each maximum follows the minimum above it, and each minimum
# above its maximum goes one below that, down to D, where 63 fits again.
repaired_scale=(100 98 97 80 79 78 77 76 75 74 73 72 71 70 69 68 67 66 65 64 63 63 62 60)

visit_empty_form() {
    step "the empty form"
    picture mainscreen-empty "$main"
}

visit_presenter() {
    step "the Presenter with 105 points"
    open_with ctrl+t Presenter
    local presenter=$front empty
    picture presenter "$presenter"
    empty=$shot
    enter 105
    picture presenter "$presenter" "$empty"
    key ctrl+w
    await_main
}

visit_about() {
    step "the about window"
    edit_menu Up
    await "the window About Gradeloom" window_in_front "About Gradeloom"
    picture about "$front"
    key ctrl+w
    await_main
}

# A scale with a bound out of order is mended, and the Default button puts it back.
visit_repair() {
    step "a scale that needs its repair"
    go_to amin
    type_text 80
    click_save_settings
    await_box "the repair notice"
    picture repair "$box"
    answer_box Return
    expect_scale "${repaired_scale[@]}"
    [[ -z $(find "$home/.config" -name Preferences) ]] || fail "the repaired scale was saved at once"
    go_to Default
    key space
    expect_scale "${default_scale[@]}"
}

# --- the class

graded() { awk '$1 == "correct" || $1 == "missed"' tour/papers; }

result() { sed -n "s/^$1 *//p" tour/papers; } # NAME

take_back() { # HOW
    if [[ $1 == correct ]]; then
        key ctrl+z
    else
        edit_menu Down
        await_main
    fi
}

# The field that the mode reads gets the focus with its text selected.
use_mode() { # correct|missed
    [[ $mode != "$1" ]] || return 0
    click_number_correct
    case $1 in
        correct) click_missed && key Tab ;;
        missed) click_correct && key shift+Tab ;;
    esac
    mode=$1
}

refuse() { # SCORE
    enter "$1"
    await_box "the notice that refuses $1"
    picture refused "$box"
    answer_box Return
}

# Types in the papers, the first ones only if a number is given.
grade_papers() { # [COUNT]
    local how score
    mode=missed
    click_total
    type_text 60
    while read -r how score _; do
        case $how in
            correct | missed) use_mode "$how" && enter "$score" ;;
            slip) enter "$score" && take_back "$mode" ;;
            refused) refuse "$score" ;;
        esac
    done < <(grep -E '^(correct|missed|slip|refused) ' tour/papers | head -n "${1:-1000}")
    at=-1
}

visit_class() {
    step "the class of forty papers"
    grade_papers
    local tallies
    read -ra tallies < <(result tallies)
    expect_field percentage "$(graded | awk 'END { print $3 }')"
    expect_field lettergrade "$(graded | awk 'END { print $4 }')"
    expect_field agrade "${tallies[0]}"
    expect_field bgrade "${tallies[1]}"
    expect_field cgrade "${tallies[2]}"
    expect_field dgrade "${tallies[3]}"
    expect_field fgrade "${tallies[4]}"
    expect_field numstudents "$(result students)"
    expect_field EditField1 "$(result average)"
    picture mainscreen "$main"
}

# After forty papers the list shows the last of them.
visit_first_papers() {
    step "the first papers in the list"
    go_to ListBox1
    picture list-end "$main"
    key Home
    picture list-start "$main" "$shot"
    at=-1
}

# A few papers and a refused one, for the pictures alone.
visit_few_papers() {
    step "a few papers"
    grade_papers 4
    use_mode missed
    refuse 61
    expect_field numstudents 4
    picture mainscreen "$main"
}

# --- paper and files

is_whole_pdf() { tail -c 16 "$1" 2>/dev/null | grep -q '%%EOF'; }

visit_print() {
    step "printing to a PDF file"
    local pdf=$home/print.pdf # what the dialog proposes
    open_with ctrl+p Print
    picture print-dialog "$front"
    key Return
    await "the whole PDF file" is_whole_pdf "$pdf"
    await_main
    pdftoppm -png -r 72 -singlefile -l 1 "$pdf" "build/tour/$theme/report"
    # Blanks differ with the fonts, the rest does not.
    same_lines "the printed lines" "$(
        echo "ResultsfromGradeloom"
        echo "NumberofStudents:$(result students)ClassAverage:$(result average)%"
        graded | awk '{ print "Student" NR $4 $3 "%" }'
    )" "$(pdftotext -layout "$pdf" - | tr -d ' \f' | sed '/^$/d')"
}

visit_export() {
    step "exporting the percentages"
    open_with ctrl+e "Save your file"
    save_as "$home/percents"
    same_lines "the exported lines" "$(graded | awk '{ print $3 }')" "$(<"$home/percents")"
}

visit_save_scale() {
    step "saving the scale"
    click_save_scale
    await "the dialog Save your file" window_in_front "Save your file"
    save_as "$home/scale"
    same_lines "the lines of the saved scale" "$(printf '%s\n' "${default_scale[@]}")" "$(<"$home/scale")"
}

# A key in a scale field asks before it throws the class away.
visit_guard() {
    step "a key in the scale in the middle of a class"
    go_to amax
    key 5
    await_box "the question before the class is deleted"
    picture question "$box"
    answer_box Escape
    at=-1
    expect_field amax "${default_scale[2]}"
    expect_field numstudents "$(result students)"
    at=-1
    go_to amax
    key 9
    await_box "the question before the class is deleted"
    answer_box alt+y
    at=-1
    expect_field amax 9
    type_text "${default_scale[2]}" # a sound scale again
}

# All results are empty: none of them gives anything to copy. The dialog that opens next shows that the program
# is through with all these keys.
visit_open_broken_scale() {
    step "opening a broken scale"
    local field
    sed -i '4s/.*/80/' "$home/scale"
    mark_clipboard
    for field in agrade bgrade cgrade dgrade fgrade numstudents EditField1; do
        go_to "$field"
        key ctrl+c
    done
    open_with ctrl+o "Select a Grading Scale"
    same "what the emptied results gave to copy" "$mark" "$(clipboard)"
    answer_path "$home/scale"
    await_box "the repair notice"
    answer_box Return
    expect_scale "${repaired_scale[@]}"
}

# --- small screens

# The first column's row at the bottom of the Presenter, where the chart ends after all scrolling is done: the form
# is 646 high, and the row is 20 above its end.
expect_last_row() { # WHAT
    mark_clipboard
    xdotool mousemove --window "$presenter" 50 $((HEIGHT - 20)) click 1
    key ctrl+c
    await "the copied row" clipboard_is_not "$mark"
    same "the last row by $1" $'-35\t66.66667' "$(clipboard)"
}

expect_copy() { # WHAT EXPECTED
    mark_clipboard
    key ctrl+c
    await "$1 on the clipboard" clipboard_is_not "$mark"
    same "$1" "$2" "$(clipboard)"
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

# --- ears

# An assistive program grades a paper, with neither keys nor mouse.
visit_by_ear() {
    step "a paper by ear"
    (on_desktop timeout 50 tour/by_ear) || fail "the program was not heard as it should be"
}

bells() { grep -c 'window= 0x0, !event_only' build/tour/bells.log || true; }

bells_are() { (($(bells) == $1)); }

# The server reports each bell; the first one is rung here, to know that the watch works.
visit_bell() {
    step "the bell of a notice and of a question"
    echo 'Bell() printEvent' >"$home/bells"
    : >build/tour/bells.log
    stdbuf -oL xkbevd -cfg "$home/bells" >>build/tour/bells.log 2>&1 &
    started["bell watch"]=$!
    await "the watch over the bell" grep -q ImAlive build/tour/bells.log
    xkbbell
    await "a bell" bells_are 1
    new_class 3 4
    enter 45
    await_box "the notice that refuses 45"
    await "the notice's bell" bells_are 2
    answer_box Return
    go_to_amax
    key 5
    await_box "the question after 5"
    await "the question's bell" bells_are 3
    answer_box Escape
    expect_papers 2
    same "the bells in all" 3 "$(bells)"
}
