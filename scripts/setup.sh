# shellcheck shell=bash
# Sourced by ./run, ./test and .ci/run: installs what is missing, and builds a preset.

# Where no locale is set, file names and reports would lose what is not ASCII.
export LC_ALL="${LC_ALL:-C.UTF-8}"

# install_packages [LIST...]: what packages.txt and these lists name
# shellcheck disable=SC2120
install_packages() {
    local list missing
    list=$(sed -e 's/#.*//' scripts/packages.txt "$@")
    # One word a package; dpkg-query fails where it knows one of them not at all.
    # shellcheck disable=SC2086
    missing=$({ dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' $list 2>/dev/null || true; } |
        sed -n 's/^ii *//p' | sort | comm -23 <(printf '%s\n' $list | sort -u) -)
    [ -z "$missing" ] && return 0
    missing=${missing//$'\n'/ }
    local sudo=
    if [ "$(id -u)" -ne 0 ]; then
        if ! sudo -n true 2>/dev/null; then
            echo "These packages are missing. Install them, then start again:" >&2
            echo "    sudo apt-get update && sudo apt-get install --no-install-recommends $missing" >&2
            exit 1
        fi
        sudo="sudo"
    fi
    echo "Installing: $missing"
    local log
    log=$(mktemp)
    # dpkg needs the programs of sbin, which a plain user's path may leave out.
    # shellcheck disable=SC2086
    $sudo env DEBIAN_FRONTEND=noninteractive PATH="$PATH:/usr/sbin:/sbin" sh -c "apt-get update -qq && apt-get install -y -qq --no-install-recommends $missing" \
        >"$log" 2>&1 || {
        cat "$log" >&2
        echo "Installing the packages failed; the log is above." >&2
        exit 1
    }
    rm -f "$log"
}

# build PRESET [cmake --build arguments]
build() {
    local preset=$1
    shift
    mkdir -p build
    cmake --preset "$preset" >"build/configure-$preset.log" 2>&1 || {
        cat "build/configure-$preset.log" >&2
        exit 1
    }
    cmake --build "build/$preset" "$@"
}
