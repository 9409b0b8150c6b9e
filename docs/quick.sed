# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# A header of quick/ for Doxygen as QML sees it: enumerations, properties, what is invokable, and signals but
# those of a property. Every line stays where it is.

1s|^|/**@addtogroup quick*//**@{*/|
$s|$|/**@}*/|
s/^(#|.*Changed\(\);$|    QML_).*//
/^private:/,/^\};/s/^[^}].*//
/^    struct /,/^    \};/s/.*//
s/^public:/private:/
/^    (enum|Q_INVOKABLE) /,/^$/{
    s/^    (enum )|^    Q_INVOKABLE/public: \1/
    s/^$/private:/
}
/ READ /{
    / WRITE /!s/Q_PROPERTY\(/&readonly /
}
s/const (\w+)&/\1/g
s/\) const;/);/
s/ = \w+::\w+//
s/(\w)\* /\1 /g
s/\bQStringList\b/list<string>/g
s/\bQString\b/string/g
s/\bQVariantMap\b/var/g
s/\bQDateTime\b/date/g
s/\bdouble\b/real/g
