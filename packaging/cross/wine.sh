# shellcheck shell=bash
# A Windows to try the program on: Wine, with a home of its own in build/windows/home. Wants tour/desktop.sh.

# shellcheck disable=SC2034 # packaging/windows installs them before it starts packaging/cross/try
wine_packages=(wine wine64 fonts-wine)
wine_settings=()

# Takes the place of the calling background process, like the function of the tour that it replaces.
on_desktop() {
    [[ $1 != *.exe ]] || set -- wine "$@"
    exec env -i PATH="$PATH" LANG=C.UTF-8 DISPLAY="$DISPLAY" "${wine_settings[@]}" "$@"
}

# Neither a browser, nor a run-time for other languages, nor entries in the desktop's menu are wanted.
set_wine_up() {
    home=$PWD/build/windows/home
    wine_settings=(HOME="$home" WINEPREFIX="$home/.wine" WINEDEBUG=-all
        WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=")
    # A Wine that still runs, after a try that was broken off, has another display or none.
    env "${wine_settings[@]}" wineserver -k 2>/dev/null || true
    if [[ -f $home/ready ]]; then return; fi
    rm -rf "$home"
    mkdir -p "$home/Documents"
    (on_desktop wineboot --init) >build/windows/wine.log 2>&1 </dev/null
    local font
    for font in "MS Shell Dlg" "MS Shell Dlg 2"; do # else the toolkit takes a font with serifs
        (on_desktop wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes' \
            /v "$font" /d "DejaVu Sans" /f) >>build/windows/wine.log 2>&1 </dev/null
    done
    : >"$home/ready"
}

# Ends what Wine keeps running for this home.
end_wine() {
    [[ -n ${wine_settings[*]} ]] || return 0
    env "${wine_settings[@]}" wineserver -k 2>/dev/null || true
    home= # it is kept for the next time and not deleted with the desktop
}

windows_path() { # PATH
    local path=Z:$1
    echo "${path//\//\\}"
}
