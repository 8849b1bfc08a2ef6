# shellcheck shell=bash
# Installs what the build needs and the machine lacks, then builds. Sourced by the scripts; needs $root.
: "${root:?the folder of the project}"

# All packages of the project. Where Debian's suites differ, "A|B" is the first of them that the machine's suite has;
# the order matters, since a later suite may keep a name and move what we need out of it.
quillet_packages=(
    # tools
    g++ cmake ninja-build ccache pkg-config
    # Backend
    ca-certificates libcurl4-openssl-dev libssl-dev libsimdjson-dev zlib1g-dev
    # screens
    qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    libgl1-mesa-dev 'qt6-svg-plugins|libqt6svg6'
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates qml6-module-qtquick-layouts
    qml6-module-qtquick-window qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    fonts-inter fonts-material-design-icons-iconfont 'fonts-dejavu-mono|fonts-dejavu-core'
    # gateway
    nlohmann-json3-dev libboost-dev libsqlite3-dev
    # tests and benchmarks
    libgtest-dev libgmock-dev iproute2 libatspi2.0-dev at-spi2-core dbus-daemon xvfb)

install_dependencies() {
    install_packages "${quillet_packages[@]}"
}

# missing_packages PACKAGE ...: prints those that have to be installed, each alternative decided.
missing_packages() {
    local installed entry package policy
    installed=$(dpkg-query -W -f '|${Package} ${db:Status-Status}|' 2>/dev/null || true)
    for entry; do
        for package in ${entry//|/ }; do
            [[ $installed == *"|$package installed|"* ]] && continue 2
            # Without alternatives there is nothing to decide: apt says itself what it cannot find.
            [[ $entry != *"|"* ]] && break
            policy=$(LC_ALL=C apt-cache policy "$package" 2>/dev/null || true)
            [[ $policy == *"Candidate: "[^\(]* ]] && break
        done
        echo "$package"
    done
}

# install_packages PACKAGE ...: installs what is missing, and never removes anything to make room for it.
install_packages() {
    local missing sudo=() log
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] && return
    if ! command -v apt-get >/dev/null; then
        echo "These packages are missing, and there is no apt-get to install them: ${missing[*]}" >&2
        return 1
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Please install these packages as root, then try again: ${missing[*]}" >&2
            return 1
        fi
        sudo=(sudo)
    fi
    log=$(mktemp)
    "${sudo[@]}" apt-get update >"$log" 2>&1 || true
    # Only now is it sure which alternatives there are.
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] && rm -f "$log" && return
    echo "Installing: ${missing[*]}" >&2
    if ! "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C \
        apt-get install -y --no-install-recommends --no-remove "${missing[@]}" >>"$log" 2>&1; then
        if grep -q 'remove is disabled' "$log"; then
            echo "Nothing was installed, because apt would remove these packages to make room:" \
                "$(awk '/^[^ ]/ { removed = /will be REMOVED/; next } removed' "$log" | xargs)" >&2
        else
            tail -n 20 "$log" >&2
        fi
        echo "Could not install these packages: ${missing[*]}" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

# build PRESET [TARGET ...]: configures and builds; says nothing unless something goes wrong. Compiler warnings are
# errors only if QUILLET_WARNINGS_AS_ERRORS is set, as .ci/run does.
build() {
    local preset=$1 log
    shift
    log=$root/build/$preset.log
    mkdir -p "$root/build"
    if ! (cd "$root" && cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}) >"$log" 2>&1; then
        grep -E 'error|Error|FAILED' "$log" | head -n 20 >&2
        tail -n 20 "$log" >&2
        echo "The build failed; all of it is in build/$preset.log." >&2
        return 1
    fi
}
