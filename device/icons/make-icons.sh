#!/usr/bin/env bash
# Makes the .ico files of this folder from Debian's tango-icon-theme (public domain), in the order of
# icons.txt. Only needed when that list changes; it wants the packages tango-icon-theme and librsvg2-bin.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
theme=/usr/share/icons/Tango
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One icon of 16, 32 and 64 pixels (list, menu and high-resolution screens), each stored as a PNG.
pack_icon() { # OUT PNG16 PNG32 PNG64
    perl -e '
        my ($out, @files) = @ARGV;
        my ($directory, $images, $offset) = ("", "", 6 + 16 * @files);
        for my $file (@files) {
            open(my $in, "<:raw", $file) or die "$file: $!";
            my $png = do { local $/; <$in> };
            my $width = unpack("N", substr($png, 16, 4));
            $directory .= pack("CCCCvvVV", $width, $width, 0, 0, 1, 32, length($png), $offset);
            $offset += length($png);
            $images .= $png;
        }
        open(my $ico, ">:raw", $out) or die "$out: $!";
        print $ico pack("vvv", 0, 1, scalar @files), $directory, $images;
    ' "$@"
}

number=100
rm -f ./*.ico
while read -r name; do
    case "$name" in '#'* | '') continue ;; esac
    rsvg-convert -w 64 -h 64 "$theme/scalable/$name.svg" -o "$work/64.png"
    # The theme's own small sizes are drawn by hand and crisper than a scaled drawing.
    for size in 16 32; do
        cp "$theme/${size}x$size/$name.png" "$work/$size.png"
    done
    pack_icon "$number.ico" "$work/16.png" "$work/32.png" "$work/64.png"
    number=$((number + 1))
done <icons.txt
