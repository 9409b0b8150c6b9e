// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "diffdialog.h"

#include "linediff.h"
#include "terminal/output.h"
#include "terminal/velmo.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int contextLines = 2;

// What a line is shown with: its text, and the part of it that differs from its counterpart.
struct ShownLine
{
    DiffLine line;
    int changedFrom = 0;
    int changedTo = 0;
};

// Of two texts, where they begin to differ and how much is the same at the end.
std::pair<int, int> sameEnds(const QByteArray& a, const QByteArray& b)
{
    const int most = int(std::min(a.size(), b.size()));
    int begin = 0;
    while (begin < most && a.at(begin) == b.at(begin))
        ++begin;
    int end = 0;
    while (end < most - begin && a.at(a.size() - 1 - end) == b.at(b.size() - 1 - end))
        ++end;
    // Not in the middle of a character.
    const auto isInside = [](char c) { return (c & 0xc0) == 0x80; };
    while (begin > 0 && begin < most && (isInside(a.at(begin)) || isInside(b.at(begin))))
        --begin;
    while (end > 0 && isInside(a.at(a.size() - end)))
        --end;
    return {begin, end};
}

// Lines that go are followed by those that come: the first of the one is now the first of the
// other.
QVector<ShownLine> withChangedParts(const QVector<DiffLine>& lines)
{
    QVector<ShownLine> shown;
    for (const DiffLine& line : lines)
        shown += ShownLine{line, 0, int(line.text.size())};
    for (int i = 0; i < shown.size();) {
        const auto runFrom = [&shown](int begin, DiffLine::Kind kind) {
            int end = begin;
            while (end < shown.size() && shown.at(end).line.kind == kind)
                ++end;
            return end;
        };
        const int removed = runFrom(i, DiffLine::Removed);
        const int added = runFrom(removed, DiffLine::Added);
        const bool arePairs = removed > i && removed - i == added - removed;
        for (int k = i; arePairs && k < removed; ++k) {
            ShownLine& old = shown[k];
            ShownLine& now = shown[k + removed - i];
            const auto [begin, end] = sameEnds(old.line.text, now.line.text);
            old.changedFrom = now.changedFrom = begin;
            old.changedTo = int(old.line.text.size()) - end;
            now.changedTo = int(now.line.text.size()) - end;
        }
        i = std::max(added, i + 1);
    }
    return shown;
}

// Part of a line; of what is the same in a long one only what stands by the change.
QString partOf(const QByteArray& bytes, bool isBegin, bool isEnd)
{
    constexpr int mostBefore = 50;
    constexpr int mostBehind = 120;
    const QString text = printable(QString::fromUtf8(bytes));
    if (isBegin && text.size() > mostBefore)
        return QStringLiteral("\u2026") + text.right(mostBefore);
    if (isEnd && text.size() > mostBehind)
        return text.left(mostBehind) + QStringLiteral("\u2026");
    return text;
}

class DiffView : public QPlainTextEdit
{
public:
    explicit DiffView(QWidget* parent)
        : QPlainTextEdit(parent)
    {
        setReadOnly(true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        setLineWrapMode(QPlainTextEdit::NoWrap);
        setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        setTabChangesFocus(true);
        setAccessibleName(Velmo::tr("Lines that change"));
    }

    void showLines(const QVector<ShownLine>& lines)
    {
        const auto isShown = [&lines](int i) {
            const int begin = std::max(0, i - contextLines);
            const int end = std::min(int(lines.size()), i + contextLines + 1);
            return std::any_of(lines.begin() + begin, lines.begin() + end,
                               [](const auto& line) { return line.line.kind != DiffLine::Same; });
        };
        bool isGap = true;
        for (int i = 0; i < lines.size(); ++i) {
            if (!isShown(i)) {
                isGap = true;
                continue;
            }
            if (isGap)
                appendPlainText(Velmo::tr("Line %1").arg(lines.at(i).line.number));
            isGap = false;
            append(lines.at(i));
        }
        moveCursor(QTextCursor::Start);
    }

private:
    void append(const ShownLine& shown)
    {
        const bool isDark = palette().color(QPalette::Base).lightness() < 128;
        QByteArray text = shown.line.text;
        const bool hasFeed = text.endsWith('\n');
        if (hasFeed)
            text.chop(1);
        const int from = std::min(shown.changedFrom, int(text.size()));
        const int to = std::max(from, std::min(shown.changedTo, int(text.size())));
        QTextCharFormat plain;
        QTextCharFormat strong;
        QString sign = QStringLiteral("    ");
        if (shown.line.kind != DiffLine::Same) {
            const bool isAdded = shown.line.kind == DiffLine::Added;
            sign = isAdded ? QStringLiteral("  + ") : QStringLiteral("  \u2212 ");
            const int hue = isAdded ? 130 : 0;
            plain.setBackground(isDark ? QColor::fromHsl(hue, 80, 45)
                                       : QColor::fromHsl(hue, 120, 238));
            strong.setBackground(isDark ? QColor::fromHsl(hue, 140, 75)
                                        : QColor::fromHsl(hue, 150, 200));
            strong.setFontWeight(QFont::Bold);
        }
        appendPlainText(QString());
        QTextCursor cursor = textCursor();
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(sign, plain);
        const bool isSame = shown.line.kind == DiffLine::Same;
        cursor.insertText(partOf(text.left(from), !isSame, isSame), plain);
        cursor.insertText(partOf(text.mid(from, to - from), false, isSame), strong);
        cursor.insertText(partOf(text.mid(to), false, true), plain);
        if (!hasFeed)
            cursor.insertText(Velmo::tr(" (no line feed at the end)"), {});
    }
};

} // namespace

DiffDialog::DiffDialog(const QString& fileName, const QByteArray& before, const QByteArray& after,
                       const QStringList& warnings, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(Velmo::tr("Save changes"));
    auto* const heading =
        new QLabel(Velmo::tr("This changes in %1:").arg(printable(fileName)), this);
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    auto* const view = new DiffView(this);
    view->showLines(withChangedParts(lineDiff(before, after)));
    auto* const buttons = new QDialogButtonBox(this);
    QPushButton* const save = buttons->addButton(Velmo::tr("&Save"), QDialogButtonBox::AcceptRole);
    buttons->addButton(Velmo::tr("&Cancel"), QDialogButtonBox::RejectRole);
    save->setDefault(true);
    save->setObjectName(QStringLiteral("save"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(view);
    if (!warnings.isEmpty()) {
        auto* const label = new QLabel(warnings.join(QLatin1Char('\n')), this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addWidget(buttons);
    save->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(QSize(820, 460).boundedTo(QGuiApplication::primaryScreen()->availableSize()));
}
