#!/usr/bin/env bash
# The magnifier's picture is the screen as it is, worked out anew here; it stays above others, and
# the program ends with its main window.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

printf '[Settings]\nOnTop=True\n[Positions]\nfrmZoom=12000,1500,3000,3000,False\n' \
    >"$scratch/bin/KestrelIconEditor.ini"
convert -size 1024x768 xc:gray50 +noise Random -depth 8 "$scratch/wall.png"
# It sets the wallpaper and then fails all the same.
display -window root "$scratch/wall.png" || true
StartEditor '* - Untitled'
Drag 1 326 45 326 45
WaitForWindow '* - Screen Zoom'
magnifier=$window
# Its picture has 161 x 120 pixels then, the left top corner at 5, 35.
xdotool windowsize --sync "$magnifier" 171 160

# Zoom <percent>: types it, and leaves the box, whose cursor blinks.
Zoom() {
    xdotool mousemove --window "$magnifier" 80 17 click 1
    xdotool type "$1"
    Press Return Tab Tab
}
# IsShown <percent> <x> <y> <grid>: the magnifier shows the screen around (x, y).
IsShown() {
    import -silent -window root -depth 8 "rgb:$scratch/root"
    import -silent -window "$magnifier" -crop 161x120+5+35 +repage -depth 8 "rgb:$scratch/picture"
    perl - "$@" "$scratch/root" "$scratch/picture" <<'PERL'
use POSIX qw(floor);
my ($percent, $x, $y, $grid, @files) = @ARGV;
my ($screen, $shown) = map { open my $f, '<:raw', $_ or die; local $/; <$f> } @files;
my $z = unpack 'f', pack 'f', $percent / 100;
sub axis {
    my ($at, $size) = @_;
    my ($n, $drawn) = (floor($size / $z), floor($z * floor($size / $z)));
    ($n, $drawn) = ($n + 1, sprintf '%.0f', $z + $drawn) if $drawn < $size;
    return map { $_ < $drawn ? $at - floor($size / 2 / $z) + floor($_ * $n / $drawn) : -1 } 0 .. $size - 1;
}
my ($w, $h) = (161, 120);
my @columns = axis($x, $w);
my @rows = axis($y, $h);
my %line = map { floor($_ * $z) => 1 } 0 .. $w if $grid && $z >= 3;
for my $j (0 .. $h - 1) {
    for my $i (0 .. $w - 1) {
        my ($cx, $cy) = ($columns[$i], $rows[$j]);
        my $there = $cx >= 0 && $cx < 1024 && $cy >= 0 && $cy < 768;
        my $pixel = $there ? substr($screen, 3 * ($cy * 1024 + $cx), 3) : "\xef\xef\xef";
        $pixel = ($i + $j) % 2 ? "\xc0\xc0\xc0" : "\x80\x80\x80" if $line{$i} || $line{$j};
        exit 1 if $pixel ne substr $shown, 3 * ($j * $w + $i), 3;
    }
}
PERL
}
for each in '40 5 700' '150 100 650' '333 1023 767' '1000 60 60'; do
    read -r percent x y <<<"$each"
    Zoom "$percent"
    xdotool mousemove "$x" "$y"
    WaitFor "$kPatience" IsShown "$percent" "$x" "$y" '' || Fail "$each is not what the screen shows"
done
xdotool mousemove --window "$magnifier" 17 17 click 1 mousemove 60 60
WaitFor "$kPatience" IsShown 1000 60 60 grid || Fail 'the grid is not drawn'

# Another window that claims the place above all others loses it again.
Start xmessage -title Rival -geometry +700+110 'A window that claims to be above all others'
WaitForWindow Rival
xdotool mousemove --window "$window" 20 -8 click 2
IsAbove() {
    [[ $(xprop -id "$magnifier" _NET_WM_STATE) == *ABOVE* ]] &&
        [[ $(xprop -root -notype _NET_CLIENT_LIST_STACKING) == *"$(printf '0x%x' "$magnifier")" ]]
}
WaitFor "$kPatience" IsAbove || Fail 'another window stays above the magnifier'
Kill "$lastStarted"

xdotool windowactivate "$(WindowTitled '* - Untitled')"
WaitForWindow '* - Untitled'
Quit
grep -qx 'frmZoom=12000,1500,[0-9]*,[0-9]*,False' "$scratch/bin/KestrelIconEditor.ini" ||
    Fail 'its place is not kept'
