# shellcheck shell=bash
# What ./test --portable needs beyond scripts/dependencies.sh. Sourced after it; needs $root.
: "${root:?the folder of the project}"

# The compilers and the emulator, and what libc++ and the other processors' programs are linked with. The latter are
# unpacked into folders of their own: installed, they would have to push out packages that the machine needs.
portable_packages=(clang-19 g++-aarch64-linux-gnu g++-arm-linux-gnueabihf qemu-user)
libcxx_packages=(libc++-19-dev libc++abi-19-dev)
backend_packages=(libcurl4-openssl-dev libssl-dev libsimdjson-dev zlib1g-dev nlohmann-json3-dev libboost-dev
    libgtest-dev libgmock-dev)

# shellcheck disable=SC2034 # For ./test.
portable_presets=(libc++ arm64 armhf clang)

prepare_portable() {
    install_packages "${portable_packages[@]}"
    local preset
    for preset; do
        case $preset in
        libc++) unpack libc++ "$(dpkg --print-architecture)" "${libcxx_packages[@]}" ;;
        arm64 | armhf) unpack "$preset" "$preset" "${backend_packages[@]}" ;;
        clang) ;;
        esac
    done
}

# unpack FOLDER ARCHITECTURE PACKAGE ...: the packages and all that they depend on, from this machine's own archive, into
# build/unpacked/FOLDER. The machine's own state is neither asked nor changed.
unpack() {
    local folder=$root/build/unpacked/$1 architecture=$2 apt=$root/build/unpacked/$1.apt log=$root/build/unpacked/$1.log
    shift 2
    [ "$(cat "$folder/packages" 2>/dev/null)" != "$*" ] || return 0
    echo "Unpacking for $architecture: $*" >&2
    rm -rf "$folder" "$apt"
    # Where /lib is a link on the machine, packages may hold files under either name.
    mkdir -p "$folder/usr/lib" "$apt/lists/partial" "$apt/archives/partial"
    ln -s usr/lib "$folder/lib"
    : >"$apt/status"
    local options=(-o "APT::Architecture=$architecture" -o "APT::Architectures=$architecture"
        -o "Dir::State=$apt" -o "Dir::State::status=$apt/status" -o "Dir::Cache=$apt" -o "APT::Sandbox::User=root")
    # One list that cannot be had need not be missed.
    apt-get "${options[@]}" update >"$log" 2>&1 || true
    if ! { apt-get "${options[@]}" install -y --no-install-recommends --download-only "$@" &&
        unpack_archives "$folder" "$apt"/archives/*.deb; } >>"$log" 2>&1; then
        tail -n 20 "$log" >&2
        echo "Could not unpack: $*" >&2
        return 1
    fi
    rm -rf "$apt"
    echo "$*" >"$folder/packages"
}

unpack_archives() {
    local folder=$1 archive link
    shift
    for archive; do
        dpkg-deb --fsys-tarfile "$archive" | tar -x --keep-directory-symlink -C "$folder" || return
    done
    # Links from the root of a machine lead to this folder's root instead.
    find "$folder" -type l -lname '/*' | while read -r link; do
        ln -sfn "$folder$(readlink "$link")" "$link"
    done
}
