# The work of extract.sh: reads documents, writes one file per block into the folder `out`.

function fail(text) {
    printf "%s:%d: %s\n", FILENAME, FNR, text > "/dev/stderr"
    failed = 1
}

# Begins a block: `what` and `name` come from the comment in front of it.
function open_block() {
    language = substr($0, 4)
    opened = FNR
    target = ""
    if (what == "" && language == "text")
        return
    if (language == "")
        fail("a block without a language")
    else if (what == "")
        fail("nothing runs this block: give it a name, or the language text")
    else if (what == "output" && language != "text")
        fail("an output is text")
    else {
        extension = what == "output" ? "out" : language
        if (what == "part of")
            target = out "/part-" ++parts
        else
            target = out "/" name "." extension
        if (target in written)
            fail("a second " target)
        written[target] = 1
        printf "" > target
        # The compiler names the document's lines.
        if (what == "example" && (language == "c" || language == "cpp"))
            printf "#line %d \"%s\"\n", FNR + 1, FILENAME > target
        print what "\t" name "\t" language "\t" FILENAME ":" FNR "\t" target_name() > (out "/list")
    }
}

function target_name() {
    return substr(target, length(out) + 2)
}

BEGIN { printf "" > (out "/list") }

FNR == 1 { if (inside) fail("the last block of the file before has no end"); inside = 0; what = "" }

inside && /^```[ \t]*$/ { inside = 0; what = ""; if (target != "") close(target); next }
inside { if (target != "") print > target; next }

/^ *```/ {
    if ($0 !~ /^```[a-z]*$/) fail("a fence that is neither at the line's beginning nor simple")
    inside = 1
    open_block()
    next
}
/^<!-- (example|output|part of): [^ ]+ -->$/ {
    what = $0; sub(/^<!-- /, "", what); sub(/: .*/, "", what)
    name = $0; sub(/^[^:]*: /, "", name); sub(/ -->$/, "", name)
    next
}
# Only blank lines may stand between a comment and its block.
/[^ \t]/ { if (what != "") fail("no block behind '" what ": " name "'"); what = "" }

END { if (inside) fail("a block without an end"); exit failed }
