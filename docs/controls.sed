# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# A control for doxyqml, which tells no values and knows neither types of functions nor required properties: such a
# word becomes the first part of the name behind it, as in "real.value". docs/doxyqml.sed makes two of it again.

1s|^|/**@addtogroup controls*//**@{*/|
$s|$|/**@}*/|
s/^[A-Z]\.//
s/(readonly|required) property /property \1./
s/^pragma .*//

# What has a comment with //, up to the next empty line, is the type's own affair.
/^    \/\/ /,/^$|^    \/\/\/ /s/^    (default )?(property|signal|function) /    /

/^    function /{
    s/(\w+): (\w+)/\2.\1/g
    s/function (.*\)): (\w+)/function \2.\1/
}

# A value that is written in a word is told, but where there is a comment only.
/^    \/\/\/ /{
    N
    s/\n +property [^:.]*: ("[^"]*"|[-A-Za-z0-9.]+|\[\]|\(\{\}\))( *\/\/.*)?$/\n    \/\/\/ Initially `\1`.&/
    P
    D
}
