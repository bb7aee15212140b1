# shellcheck shell=bash disable=SC2034
# Sourced by the commands at the root: what the project needs of Debian, and how it gets there.

# What building and running the pendant takes.
pendant_packages=(build-essential cmake ninja-build ccache qtbase5-dev libqt5serialbus5-dev libpugixml-dev
                  libcli11-dev fonts-dejavu-core qttools5-dev qttools5-dev-tools)
# What showing the pendant in every language takes.
font_packages=(fonts-noto-cjk)

# What fieldbusctl takes.
tool_packages=(build-essential cmake ninja-build ccache qtbase5-dev libpugixml-dev libcli11-dev)

# need_packages PACKAGE...: installs those that are missing. Asks nothing of apt when all are there.
need_packages() {
    local missing=() package as_root=()
    for package in "$@"; do
        [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and only root can install them: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}" >&2
    "${as_root[@]}" apt-get -qq update >&2 &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq --no-install-recommends -y install \
            "${missing[@]}" >&2
}

# quietly LOG COMMAND...: keeps the output of COMMAND in the file LOG and shows it only when COMMAND fails, or
# at once with verbose=1.
quietly() {
    local log=$1 status=0
    shift
    if ((${verbose:-0})); then
        "$@"
        return
    fi
    "$@" >"$log" 2>&1 || status=$?
    ((status == 0)) || cat "$log" >&2
    return "$status"
}

# with_progress WHAT LOG COMMAND...: the same for a build of CMake and Ninja, which takes minutes the first time:
# says how far it is and how long it took.
with_progress() {
    local what=$1 log=$2 status=0 builder said=-30
    shift
    if ((${verbose:-0})); then
        "${@:2}"
        return
    fi
    SECONDS=0
    "${@:2}" >"$log" 2>&1 &
    builder=$!
    while kill -0 "$builder" 2>/dev/null; do
        sleep 0.5
        if [[ -t 2 ]]; then
            printf '\r%s: %s, %d s ' "$what" "$(steps_done "$log")" "$SECONDS" >&2
        elif ((SECONDS >= 3 && SECONDS - said >= 30)); then
            said=$SECONDS
            echo "$what: $(steps_done "$log"), $SECONDS s" >&2
        fi
    done
    wait "$builder" || status=$?
    [[ ! -t 2 ]] || printf '\r\033[K' >&2
    if ((status)); then
        cat "$log" >&2
    elif ((SECONDS >= 5)); then
        echo "$what: done in $SECONDS s" >&2
    fi
    return "$status"
}

# steps_done LOG: the last "[12/345]" that Ninja wrote there, in words.
steps_done() {
    local last
    last=$(grep -oE '^\[[0-9]+/[0-9]+\]' "$1" 2>/dev/null | tail -n 1)
    [[ -z $last ]] && echo "starting" && return
    last=${last//[\[\]]/}
    echo "step ${last%/*} of ${last#*/}"
}

# scratch_in_memory: names a folder in memory as $scratch for what tests write, and removes it in the end; without
# room there, the usual place. Half of a test's time is waiting for the disk otherwise.
scratch_in_memory() {
    scratch=${TMPDIR:-/tmp}
    local free
    free=$(df --output=avail -BM /dev/shm 2>/dev/null | tr -dc '0-9\n' | tail -n 1)
    ((${free:-0} >= 1024)) || return 0
    scratch=$(mktemp -d /dev/shm/fieldbus-tests.XXXXXX)
    trap 'rm -rf -- "$scratch"' EXIT
}
