# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# What doxyqml makes of a file that docs/controls.sed gave it, for Doxygen, which reads no property without READ.

/^(void|Q_PROPERTY)/s/(\w)\.(\w)/\1 \2/g
s/^void (\w+ \w+\()/\1/
s/^(Q_PROPERTY\((readonly|required) .*)\)/\1 READ get)/
t
s/^(Q_PROPERTY.*)\)/\1 READ get WRITE set)/
