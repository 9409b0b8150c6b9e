#include "arrayfile.h"

#include "textfile.h"

#include <cctype>

namespace {

// The line on which the element at @p index of an array begins; the text is known to be one.
int lineOfElement(const QByteArray& text, int index)
{
    int depth = 0;
    bool inString = false;
    bool beforeElement = false;
    for (decltype(text.size()) i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (beforeElement && !isspace(static_cast<unsigned char>(c))) {
            if (index-- == 0)
                return 1 + static_cast<int>(text.left(i).count('\n'));
            beforeElement = false;
        }
        if (inString && c == '\\')
            ++i;
        else if (c == '"')
            inString = !inString;
        else if (inString)
            continue;
        else if (c == '[' || c == '{')
            beforeElement = ++depth == 1;
        else if (c == ']' || c == '}')
            --depth;
        else if (c == ',')
            beforeElement = depth == 1;
    }
    return 1;
}

} // namespace

ArrayFile::ArrayFile(const QString& name, const QString& contents)
{
    TextFile file(name);
    m_text = file.readAll();
    const QJsonDocument document = file.parseJson(m_text, 1);
    if (!document.isArray())
        throw file.faultAt(1, QStringLiteral("expected a list of %1").arg(contents));
    m_name = file.name();
    m_elements = document.array();
}

QString ArrayFile::place(int index) const
{
    return QStringLiteral("%1:%2").arg(m_name, QString::number(lineOfElement(m_text, index)));
}
