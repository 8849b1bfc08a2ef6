# Installs what the build needs and the machine lacks. Sourced by run, test and bench; needs $root.

quillet_packages=(
    # tools
    g++ cmake ninja-build ccache pkg-config
    # Backend
    libcurl4-openssl-dev libssl-dev libsimdjson-dev zlib1g-dev nlohmann-json3-dev
    # screens
    qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    libgl1-mesa-dev libqt6svg6
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates qml6-module-qtquick-layouts
    qml6-module-qtquick-window qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    fonts-inter fonts-material-design-icons-iconfont
    # gateway
    libboost-dev libsqlite3-dev
    # tests and benchmarks
    libgtest-dev libgmock-dev libbenchmark-dev)

install_dependencies() {
    local missing=() package sudo=()
    for package in "${quillet_packages[@]}"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
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
    echo "Installing: ${missing[*]}" >&2
    local log
    log=$(mktemp)
    if ! { "${sudo[@]}" apt-get update && "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        echo "Could not install these packages: ${missing[*]}" >&2
        return 1
    fi
}

# build PRESET [TARGET ...]: configures and builds; says nothing unless something goes wrong.
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
