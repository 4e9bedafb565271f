#!/usr/bin/env bash
# same-bytes.sh: builds the package from the last commit in two fresh folders whose paths differ in length, one after the
# other and without the compiler's cache, and compares them. The status is 0 only if they are the same to the byte.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source=$PWD
commit=$(git -c safe.directory="$source" rev-parse HEAD)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

export CCACHE_DISABLE=1
for folder in "$scratch/a" "$scratch/a-second-and-longer/place"; do
    git -c safe.directory="$source" clone -q --no-hardlinks "$source" "$folder"
    git -C "$folder" -c advice.detachedHead=false checkout -q "$commit"
    (cd "$folder" && ./package)
done
first=$(cd "$scratch/a" && sha256sum build/package/*.deb)
second=$(cd "$scratch/a-second-and-longer/place" && sha256sum build/package/*.deb)
if [ "$first" != "$second" ]; then
    echo "The two packages differ." >&2
    exit 1
fi
echo "Two builds, the same bytes: ${first%% *}"
