#!/usr/bin/env bash
# Runs a command that prints to the default printer, with a printing system of its own: a private CUPS
# whose only queue keeps the job in a file. Passes when the command does and one landscape page has come.
# Exits with 77 (skipped) where CUPS is not installed. The queue is a raw one: jobs arrive as Qt makes
# them, and no filters are needed. Qt's CUPS plugin (of libqt6printsupport6) finds it through
# CUPS_SERVER on the platforms xcb and offscreen alike.
#
#     private-cups.sh COMMAND...
set -euo pipefail

for tool in /usr/sbin/cupsd /usr/sbin/lpadmin /usr/bin/lpstat /usr/bin/pdfinfo; do
    [[ -x $tool ]] || {
        echo "Skipped: $tool is missing (Debian: cups-daemon cups-client poppler-utils)"
        exit 77
    }
done

# Short, in /tmp: the path of a socket may not have more than 107 characters.
place=$(mktemp -d /tmp/cups-XXXXXX)
stop() {
    [[ -z ${server:-} ]] || { kill "$server" && wait "$server"; } 2>/dev/null || true
    rm -rf "$place"
}
trap stop EXIT

mkdir -p "$place"/{etc/ppd,bin/backend,spool/tmp,cache,state,log,out}
# The server runs its back end as another user where this one is root.
chmod 755 "$place"
chmod 777 "$place/out"
ln -s /usr/lib/cups/{daemon,filter,notifier} "$place/bin/"
cat > "$place/bin/backend/tofile" <<'BACKEND'
#!/bin/sh
# Without arguments: lists its devices. Else: keeps the job, file $6 or standard input, as job-ID.pdf.
[ $# -eq 0 ] && { echo 'direct tofile "Unknown" "Keep jobs in files"'; exit 0; }
cat ${6:+"$6"} > "${DEVICE_URI#tofile:}/job-$1.part" &&
    mv "${DEVICE_URI#tofile:}/job-$1.part" "${DEVICE_URI#tofile:}/job-$1.pdf"
BACKEND
chmod 755 "$place/bin/backend/tofile"

if ((EUID == 0)); then user=lp group=lp admins="root lpadmin"; else
    user=$(id -un) group=$(id -gn) admins=$group
fi
cat > "$place/etc/cups-files.conf" <<CONF
Sandboxing relaxed
User $user
Group $group
SystemGroup $admins
ServerRoot $place/etc
ServerBin $place/bin
DataDir /usr/share/cups
RequestRoot $place/spool
TempDir $place/spool/tmp
CacheDir $place/cache
StateDir $place/state
AccessLog $place/log/access_log
ErrorLog $place/log/error_log
PageLog $place/log/page_log
CONF
cat > "$place/etc/cupsd.conf" <<CONF
Listen $place/socket
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
CONF
/usr/sbin/cupsd -f -c "$place/etc/cupsd.conf" -s "$place/etc/cups-files.conf" &
server=$!
export CUPS_SERVER=$place/socket

within_ten_seconds() {
    for ((i = 0; i < 100; ++i)); do
        ! "$@" 2>/dev/null || return 0
        sleep 0.1
    done
    echo "Waited in vain for: $*; the server's log says:" >&2
    tail -n 20 "$place/log/error_log" >&2
    return 1
}

running() { lpstat -r | grep -q 'is running'; }
within_ten_seconds running
lpadmin -p Paper -v "tofile:$place/out" -E 2>/dev/null
lpadmin -d Paper

"$@"

printed() { compgen -G "$place/out/job-*.pdf" >/dev/null; }
within_ten_seconds printed
pages=$(pdfinfo "$place"/out/job-*.pdf)
echo "$pages"
# Size and turn of the page as it is read: "Page size: 842 x 595 pts (A4)", "Page rot: 0".
awk '/^Pages:/ { pages = $2 } /^Page size:/ { width = $3; height = $5 } /^Page rot:/ { turn = $3 }
    END { exit !(pages == 1 && (turn % 180 ? height > width : width > height)) }' <<<"$pages" ||
    { echo "One landscape page was expected." >&2; exit 1; }
