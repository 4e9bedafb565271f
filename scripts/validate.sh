#!/usr/bin/env bash
# Every file that has a validator passes it: desktop entries, metainfo, XML and SVG, manual pages.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1

status=0
complain() {
    echo "validate: $*"
    status=1
}
names=$(mktemp)
trap 'rm -f "$names"' EXIT
git -c safe.directory="$PWD" ls-files -z -- '*.desktop' '*.metainfo.xml' '*.svg' '*.xml' '*.qrc' '*.[1-8]' >"$names" ||
    complain "the tracked files are not known"
[ -s "$names" ] || complain "there is nothing to validate"

while IFS= read -r -d '' file; do
    case $file in
    *.desktop) desktop-file-validate "$file" || complain "$file is no valid desktop entry" ;;
    *.metainfo.xml)
        # --no-net: the addresses in it are not asked for.
        appstreamcli validate --no-net "$file" || complain "$file is no valid metainfo"
        ;;
    *.svg | *.xml | *.qrc) xmllint --noout --nonet "$file" || complain "$file is not well-formed" ;;
    *.[1-8])
        warnings=$(man --warnings -E UTF-8 -l -Tutf8 -Z "$file" 2>&1 >/dev/null)
        [ -z "$warnings" ] || complain "$file: $warnings"
        mandoc -T lint -W style "$file" || complain "$file is no clean manual page"
        ;;
    esac
done <"$names"
exit $status
