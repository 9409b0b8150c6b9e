# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# A control for Doxygen, as a class of C++. Every line stays where it is.

1s|^|/**@addtogroup controls*//**@{*/|
s|^\}$|};/**@}*/|

# What has a comment with //, up to the next empty line, is the type's own affair.
/^    \/\/ /,/^$|^    \/\/\/ /s/^    [^/].*//

# A value that is written in a word is told, but where there is a comment only.
/^    \/\/\/ /{
    N
    s/\n +property [^:]*: ("[^"]*"|[-A-Za-z0-9.]+|\[\]|\(\{\}\))( *\/\/.*)?$/ Initially `\1`.&/
    P
    D
}
/^    function /{
    s/(\w+): (\w+)/\2 \1/g
    s/^    function (.*\)): (\w+) \{/\2 \1;/
    s/^    function (.*) \{/void \1;/
}
s/^    signal (\w+)$/&()/
s/^    signal (.*)/Q_SIGNALS: void \1; public:/
s/^    (default )?property (\w+ \w+).*/Q_PROPERTY(\2 READ get WRITE set)/
s/^    (required |readonly )property (\w+ \w+).*/Q_PROPERTY(\1\2 READ get)/
/^( |import|pragma)/{
   /^    \/\/\//!s/.*//
}
