# SPDX-FileCopyrightText: 2026 velmolib maintainers
# SPDX-License-Identifier: MIT

# What QML sees of a QML file or of a header of quick/, as a class of C++ for Doxygen. Every line stays where
# it is.
#
# In a QML file everything is public: what has a comment with /// is for the reference, what has one with
# // is the type's own affair. Either counts up to the next empty line; without one Doxygen complains.
BEGIN {
    name = ARGV[1]
    isHeader = sub(/\.h$/, "", name)
    sub(/\.qml$/, "", name)
    sub(/.*\//, "", name)
}
FNR == 1 { $0 = "/**@addtogroup " (isHeader ? "quick" : "controls") "*//**@{*/" }
/^};?$/ { $0 = "};/**@}*/" }
FNR > 1 && !/^}/ { $0 = isHeader ? ofHeader($0) : ofQml($0) }
{ print }

# Enumerations, properties, what is invokable, and signals but those of a property.
function ofHeader(line)
{
    if (line == "{")
        return "{public:"
    if (line ~ /^private:/)
        isPrivate = 1
    if (line ~ /^Q_SIGNALS:/)
        isSignals = 1
    if (isPrivate)
        return ""
    if (line ~ /^(class |Q_SIGNALS:| *\/\/\/)/)
        return line
    if (line ~ /^    (enum |Q_PROPERTY|Q_INVOKABLE)/ || (isSignals && line !~ /^$|Changed\(\);$/))
        isSeen = 1
    if (!isSeen)
        return ""
    if (sub(/ (NOTIFY [A-Za-z]+|CONSTANT)\)$/, "&;", line) && line !~ / WRITE /)
        sub(/Q_PROPERTY\(/, "&readonly ", line)
    isSeen = line !~ /;$/
    sub(/Q_INVOKABLE /, "", line)
    sub(/ = [A-Za-z]+::[A-Za-z]+/, "", line)
    gsub(/ const;/, ";", line)
    gsub(/const |[&*]/, "", line)
    gsub(/QStringList/, "list<string>", line)
    gsub(/QString/, "string", line)
    gsub(/QVariantMap/, "var", line)
    gsub(/QDateTime/, "date", line)
    gsub(/double/, "real", line)
    return line
}

function ofQml(line,    initial)
{
    if (line ~ /^\/\/\/ /) {
        isDescribed = 1
        return line
    }
    if (line ~ /^[A-Z][A-Za-z.]* \{$/) {
        if (!isDescribed) { # Doxygen does not miss it where the type has no member
            print FILENAME ":" FNR ": error: no comment says what the type is" > "/dev/stderr"
            exit 1
        }
        gsub(/.*\.| \{/, "", line)
        return "class " name " : public " line "{"
    }
    if (line == "")
        comment = isOwn = isTold = ""
    if (line ~ /^    \/\//) {
        if (isTold)
            comment = isTold = ""
        isOwn = !sub(/^    \/\/\/ /, "", line)
        comment = comment " " line
    }
    if (isOwn || line !~ /^    ((default|required|readonly) )*(property|signal|function) /)
        return ""
    isTold = 1
    sub(/^    /, "", line)
    if (line ~ /^signal /)
        return told("") "Q_SIGNALS: " called(substr(line, 8)) ";"
    if (line ~ /^function /)
        return told("") "public: " called(substr(line, 10)) ";"
    sub(/ *\/\/.*/, "", line)
    sub(/property /, "", line)
    # A value that is written in a word is told.
    initial = line ~ /^readonly/ ? "" : line
    if (!sub(/^[^:]*: /, "", initial) || initial !~ /^("[^"]*"|[-A-Za-z0-9.]+|\[\]|\(\{\}\))$/)
        initial = ""
    sub(/:.*/, "", line)
    return told(initial) "public: Q_PROPERTY(" line " READ " name (line ~ /^readonly/ ? "" : " WRITE " name) ")"
}

function told(initial)
{
    if (comment == "")
        return ""
    return "/**" comment (initial == "" ? "" : " Initially `" initial "`.") "*/"
}

# Name, parameters and type of a result in the order of C++: from "text(value: real): string {".
function called(line,    result, arguments, parts, pair, count, i)
{
    sub(/ \{$/, "", line)
    result = "void"
    if (line ~ /\): /) {
        result = substr(line, index(line, "): ") + 3)
        sub(/\): .*/, ")", line)
    }
    if (line !~ /\(/)
        line = line "()"
    count = split(substr(line, index(line, "(") + 1), parts, /, |\)/) - 1
    sub(/\(.*/, "", line)
    for (i = 1; i <= count; i++) {
        if (split(parts[i], pair, ": ") == 2)
            parts[i] = pair[2] " " pair[1]
        arguments = arguments (i > 1 ? ", " : "") parts[i]
    }
    return result " " line "(" arguments ")"
}
