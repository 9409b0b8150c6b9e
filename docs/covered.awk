# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# Doxygen's filter for headers. A comment above members covers those up to the next empty line, the
# setter with its getter: Doxygen is given them as a group. Every line stays where it is.
/^ / {
    lines[++count] = $0
    next
}
{
    end()
    print
}
END { end() }

function end(    i, members)
{
    for (i = 1; i <= count; i++)
        members += lines[i] ~ /[;}]( *\/\/\/<.*)?$/ && lines[i] !~ /^ *\/\//
    covers = members > 1 && lines[1] ~ /^ *\/\/\/ /
    for (i = 1; i <= count; i++)
        print (covers && i == 1 ? "/**@{*/" : "") lines[i]
    if (covers)
        printf "/**@}*/"
    count = 0
}
