# shellcheck shell=bash
# The program as it is meant to be used. Each visit starts and ends with the main window in front.

# Set by tour/desktop.sh and tour/hands.sh: theme, home, main, front, box, shot.

default_scale=(100 98 97 93 92 90 89 88 87 83 82 80 79 78 77 73 72 70 69 68 67 63 62 60)

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

# Switches Use Number Correct and moves the focus to the field that it selects.
use_mode() { # correct|missed
    [[ $mode != "$1" ]] || return 0
    click checkcorrect
    go_to "$1"
    mode=$1
}

refuse() { # SCORE
    enter "$1"
    await_box "the notice that refuses $1"
    picture refused "$box"
    answer_box Return
}

# Types in all papers, or the first COUNT of them.
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

# Four papers and a refused one, for the pictures.
visit_few_papers() {
    step "a few papers"
    grade_papers 4
    use_mode missed
    refuse 61
    expect_field numstudents 4
    picture mainscreen "$main"
}

# --- paper

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
    # The blanks depend on the fonts.
    same_lines "the printed lines" "$(
        echo "ResultsfromGradeloom"
        echo "NumberofStudents:$(result students)ClassAverage:$(result average)%"
        graded | awk '{ print "Student" NR $4 $3 "%" }'
    )" "$(pdftotext -layout "$pdf" - | tr -d ' \f' | sed '/^$/d')"
}

# --- ears

# An assistive program grades papers, and says what it would read aloud.
visit_by_ear() {
    step "a paper by ear"
    (on_desktop timeout 50 tour/by_ear "${default_scale[@]}") || fail "the program was not heard as it should be"
}
