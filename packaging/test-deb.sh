#!/usr/bin/env bash
# Tries the .deb on a fresh Debian 12: installs it, starts it as a plain user, and takes it off again.
# usage, as root: packaging/test-deb.sh [FILE.deb]     (without one, builds the release preset and packs it)
# It needs debootstrap and a folder for the fresh system: ROOT, else a new one under /tmp.
set -u
cd "$(dirname "$0")/.." || exit 1
. packaging/setup.sh

[ "$(id -u)" -eq 0 ] || fail "only root can make a fresh system"
command -v debootstrap >/dev/null || fail "this needs debootstrap"

deb=${1:-}
if [ -z "$deb" ]; then
  build release
  (cd build/release && cpack -G DEB >/tmp/kestrelix-cpack.$$.log 2>&1) || { cat /tmp/kestrelix-cpack.$$.log; fail "cpack"; }
  rm -f /tmp/kestrelix-cpack.$$.log
  deb=$(ls -t build/release/kestrelix_*.deb | head -1)
fi
[ -f "$deb" ] || fail "there is no $deb"

root=${ROOT:-$(mktemp -d /tmp/kestrelix-debian.XXXXXX)}
chmod 755 "$root" || exit 1 # plain users of the fresh system pass through it
cleanup() {
  umount "$root/proc" 2>/dev/null
  [ -n "${ROOT:-}" ] || rm -rf --one-file-system "$root"
}
trap cleanup EXIT

inside() { chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
as_user() { inside runuser -u dba -- env HOME=/home/dba QT_QPA_PLATFORM=offscreen "$@"; }
check() { # WHAT COMMAND...
  local what=$1
  shift
  "$@" >/tmp/kestrelix-check.$$.log 2>&1 || { cat /tmp/kestrelix-check.$$.log; rm -f /tmp/kestrelix-check.$$.log; fail "$what"; }
  rm -f /tmp/kestrelix-check.$$.log
  say "ok: $what"
}

# A program that starts runs on until `timeout` stops it: any other end is a failed start.
runs_on() {
  "$@"
  local status=$?
  [ $status -eq 124 ] || { echo "ended with status $status"; return 1; }
}

if [ ! -x "$root/usr/bin/apt-get" ]; then
  say "making a fresh Debian 12 in $root"
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | grep '/debian/$' | head -1)
  debootstrap --variant=minbase bookworm "$root" "$mirror" >/tmp/kestrelix-debootstrap.$$.log 2>&1 ||
    { tail -20 /tmp/kestrelix-debootstrap.$$.log; fail "debootstrap"; }
  rm -f /tmp/kestrelix-debootstrap.$$.log
fi
mountpoint -q "$root/proc" || mount -t proc proc "$root/proc" || fail "no /proc in $root"
# The packages come from where this machine takes its own.
cp -r /etc/apt/apt.conf.d "$root/etc/apt/"
cp /etc/resolv.conf /etc/hosts "$root/etc/"
inside apt-get update -qq || fail "apt-get update"
inside id dba >/dev/null 2>&1 || inside useradd -m dba
rm -rf "$root/home/dba/.local"

(cd "$root" && find . -xdev \( -path ./proc -o -path ./var -o -path ./tmp -o -path ./etc -o -path ./home \) -prune -o -print | sort) >/tmp/kestrelix-before.$$
cp "$deb" "$root/tmp/kestrelix.deb"
check "installs, with what it depends on" inside apt-get install -y --no-install-recommends /tmp/kestrelix.deb

listed=$(inside dpkg -L kestrelix)
strange=$(grep -vE '^/(\.|opt(/kestrelix(/.*)?)?|usr(/share(/applications(/kestrelix\.desktop)?)?)?)$' <<<"$listed")
[ -z "$strange" ] || fail "files outside of /opt/kestrelix: $strange"
say "ok: lies in one folder, with a menu entry"
for file in kestrelix kestrelix-report kestrelix-repository Kestrelix.chm kestrelix.png LICENSE; do
  [ -f "$root/opt/kestrelix/$file" ] || fail "/opt/kestrelix lacks $file"
done
entry=$root/usr/share/applications/kestrelix.desktop
for key in Exec Icon; do
  target=$(sed -n "s/^$key=//p" "$entry")
  [ -e "$root$target" ] || fail "the menu entry's $key leads to $target, which isn't there"
done
say "ok: the menu entry leads to the program and its picture"

missing=$(for plugin in "$root"/usr/lib/*/qt6/plugins/platforms/*.so; do inside ldd "${plugin#"$root"}"; done | grep 'not found')
[ -z "$missing" ] || fail "the screen plugins lack libraries: $missing"
[ -f "$(echo "$root"/usr/lib/*/qt6/plugins/platforms/libqxcb.so)" ] || fail "the package brings no plugin for X11"
say "ok: brings all that a screen needs"
check "starts for a user without the right to write its folder" runs_on as_user timeout 8 /opt/kestrelix/kestrelix
logins=$root/home/dba/.local/share/kestrelix/Login.txt
[ -f "$logins" ] || fail "the stored logins are not in the user's own folder"
[ "$(stat -c %a "$logins")" = 600 ] || fail "others can read the stored logins"
[ ! -e "$root/opt/kestrelix/Login.txt" ] || fail "the stored logins are in the program's folder"
say "ok: keeps the stored logins in the user's own folder"
check "makes a demo repository" as_user /opt/kestrelix/kestrelix-repository demo /home/dba/DEMO.sqlite --snapshots 5 --force
check "prints a report" as_user /opt/kestrelix/kestrelix-report --repository /home/dba/DEMO.sqlite \
  section Snapshot --instance 0 --pair 0
check "starts for root" runs_on inside env HOME=/root QT_QPA_PLATFORM=offscreen timeout 8 \
  /opt/kestrelix/kestrelix
[ -f "$root/opt/kestrelix/Login.txt" ] || fail "root's stored logins are not in the program's folder"

check "uninstalls" inside apt-get purge -y kestrelix
check "takes along what it needed" inside apt-get autoremove -y --purge
[ ! -e "$root/opt/kestrelix" ] || fail "left behind: $(find "$root/opt/kestrelix")"
[ ! -e "$entry" ] || fail "left the menu entry behind"
[ -f "$logins" ] || fail "the user's stored logins are gone"
(cd "$root" && find . -xdev \( -path ./proc -o -path ./var -o -path ./tmp -o -path ./etc -o -path ./home \) -prune -o -print | sort) >/tmp/kestrelix-after.$$
left=$(comm -13 /tmp/kestrelix-before.$$ /tmp/kestrelix-after.$$ | grep -i kestrelix)
rm -f /tmp/kestrelix-before.$$ /tmp/kestrelix-after.$$
[ -z "$left" ] || fail "left behind: $left"
say "ok: leaves nothing of its own behind"
say "$(basename "$deb") passed"
