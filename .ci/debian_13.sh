# shellcheck shell=bash
# A bare Debian 13 in the user's cache folder, for all clones, in which each change is built and tested. Mounts and
# processes there belong to one command and end with it, whichever way it ends; outside nothing is ever mounted.

debian_13=$(cache_folder)/debian-13

# Runs a command as root with mounts and processes of its own.
apart() { as_root unshare --mount --pid --fork --kill-child "$@" </dev/null; }

# Runs a command in a system that lies in a folder.
inside() { # FOLDER COMMAND...
    # shellcheck disable=SC2016 # it is the inner shell that takes the names apart
    apart bash -euc 'mount -t proc proc "$0/proc"
        mount -t tmpfs -o mode=1777 tmpfs "$0/dev/shm"
        exec chroot "$0" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 "$@"' "$@"
}

# The machine's own mirror: the one that its release comes from.
debian_mirror() {
    local codename
    codename=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
    # shellcheck disable=SC2016 # apt puts its own words in
    apt-get indextargets --format '$(RELEASE) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
        awk -v "wanted=$codename main" '$1 " " $2 == wanted && !mirror { mirror = $3 } END { print mirror }'
}

# Nothing can be mounted below it here, and if something were, it would be left alone.
delete_system() { as_root rm -rf --one-file-system "$1"; } # FOLDER

# A new one takes the place of the old one only when it is complete.
make_debian_13() {
    local half=$debian_13.half
    delete_system "$half" &&
        apart debootstrap --variant=minbase --include=ca-certificates trixie "$half" "$(debian_mirror)" &&
        inside "$half" touch /made &&
        delete_system "$debian_13" &&
        as_root mv "$half" "$debian_13"
}

is_younger_than_a_week() { [[ -n $(find "$debian_13/made" -mtime -7 2>/dev/null) ]]; }

# One that can't be renewed is better than none.
provide_debian_13() { is_younger_than_a_week || make_debian_13 || [[ -e $debian_13/made ]]; }

copy_sources_to_debian_13() {
    delete_system "$debian_13/gradeloom"
    as_root mkdir "$debian_13/gradeloom"
    sources | tar --create --null --files-from=- |
        as_root tar --extract --no-same-owner --directory="$debian_13/gradeloom"
}

# A clone that comes while another is in there waits.
test_on_debian_13() {
    local log=build/debian-13.log lock
    mkdir -p build "$(cache_folder)"
    exec {lock}>"$debian_13.lock"
    flock "$lock"
    is_younger_than_a_week || say "making one in $debian_13: 2 GB, until you delete that folder as root"
    if ! { provide_debian_13 && inside "$debian_13" true; } >"$log" 2>&1; then
        leave_out "none can be made and entered here: $(tail -n 1 "$log")"
        return
    fi
    copy_sources_to_debian_13
    as_root cp --remove-destination /etc/resolv.conf "$debian_13/etc/"
    inside "$debian_13" /gradeloom/.ci/both_compilers
    exec {lock}>&-
}
