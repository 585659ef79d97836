# Sourced by scripts/pictures.sh: all pictures of the folder $target on one page and, a sheet per
# language, as pictures. Uses the lists $views, $screens and $languages.

# What stands below a picture: the view, and the screen with the language.
label_of() { # FILE
    local name=${1##*/}
    name=${name%.png}
    [[ $name =~ ^(.*)-([0-9]+x[0-9]+)-(.*)$ ]]
    printf '%s\n%s %s' "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}" "${BASH_REMATCH[3]}"
}

# The pictures of a language that exist, view by view, small screens first.
pictures_of() { # LANGUAGE
    local view size
    for view in "${views[@]}" "${views_without_cities[@]}" "${help_views[@]}"; do
        for size in "${screens[@]}"; do
            echo "$target/$view-$size-$1.png"
        done
    done
}

make_sheet() { # LANGUAGE
    local arguments=() picture
    while read -r picture; do
        arguments+=(-label "$(label_of "$picture")" "$picture")
    done < <(pictures_of "$1")
    gm montage -font /usr/share/wine/fonts/tahoma.ttf -pointsize 9 -fill '#202428' \
        -background '#d8dcde' -geometry '160x160>+6+4' -tile 9x "${arguments[@]}" "$target/contact-sheet-$1.png"
    # Few colours make a small file.
    gm mogrify -strip -colors 128 "$target/contact-sheet-$1.png"
}

make_page() {
    local language picture
    cat <<'HTML'
<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Every view of the device</title>
<style>
body { background: #d8dcde; color: #202428; font: 14px sans-serif; margin: 16px; }
figure { display: inline-block; margin: 6px; vertical-align: top; }
figcaption { font-size: 11px; text-align: center; }
img { background: white; max-height: 320px; }
</style>
</head>
<body>
HTML
    for language in "${languages[@]}"; do
        echo "<h2>$language</h2>"
        while read -r picture; do
            echo "<figure><a href=\"${picture##*/}\"><img src=\"${picture##*/}\" alt=\"$(label_of "$picture")\"></a>"
            echo "<figcaption>$(label_of "$picture")</figcaption></figure>"
        done < <(pictures_of "$language")
    done
    echo "</body>"
    echo "</html>"
}

make_contact_sheets() {
    local language
    for language in "${languages[@]}"; do
        make_sheet "$language"
    done
    make_page >"$target/contact-sheet.html"
}
