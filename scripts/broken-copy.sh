# shellcheck shell=bash
# A copy of the project into which faults are put, one at a time. Sourced after scripts/dependencies.sh; needs $root.
: "${root:?the folder of the project}"

copy=$root/build/copy

# make_copy: the files that git knows, as they are now, in the copy. What differs gets a new time, so that it is built again.
make_copy() {
    local file
    mkdir -p "$copy"
    while IFS= read -r -d '' file; do
        mend "$file"
    done < <(cd "$root" && git ls-files -z)
    # A file that is gone may still be found by a pattern.
    if [ -e "$copy/files" ]; then
        while IFS= read -r file; do
            rm -f "$copy/$file"
        done < <(comm -23 "$copy/files" <(cd "$root" && git ls-files | sort))
    fi
    (cd "$root" && git ls-files | sort) >"$copy/files"
}

# mend FILE: the file in the copy is the one of the project.
mend() {
    cmp -s "$root/$1" "$copy/$1" && return
    mkdir -p "$(dirname "$copy/$1")"
    cp "$root/$1" "$copy/$1"
    [ ! -x "$root/$1" ] || chmod +x "$copy/$1"
}

# spoil FILE TEXT OTHER: puts one text in the place of another, which must be there once. \n stands for a line break.
spoil() {
    TEXT=$2 OTHER=$3 perl -0777 -i -pe '
        BEGIN { for (qw(TEXT OTHER)) { $ENV{$_} =~ s/\\(.)/$1 eq "n" ? "\n" : $1/ge } }
        my $count = () = /\Q$ENV{TEXT}\E/g;
        die "$ENV{TEXT}: it is there $count times\n" if $count != 1;
        s/\Q$ENV{TEXT}\E/$ENV{OTHER}/' "$copy/$1"
}

# build_copy TARGET: says nothing; what the compiler said is in build/copy.log.
build_copy() {
    # Programs are run whole, so building need not list their tests.
    (cd "$copy" && { [ -e build/build.ninja ] || QUILLET_WARNINGS_AS_ERRORS=OFF cmake --preset dev \
        -D CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST; } &&
        cmake --build --preset dev --target "$1") >"$copy.log" 2>&1
}
