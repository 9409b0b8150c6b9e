// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "linediff.h"

#include <algorithm>
#include <vector>

namespace {

using Lines = QVector<QByteArray>;

Lines linesOf(const QByteArray& text)
{
    Lines lines;
    for (int begin = 0; begin < text.size();) {
        const auto feed = text.indexOf('\n', begin);
        const int end = feed < 0 ? int(text.size()) : int(feed) + 1;
        lines += text.mid(begin, end - begin);
        begin = end;
    }
    return lines;
}

// How many lines two texts have in common, from each line of the one and of the other on.
class CommonLines
{
public:
    CommonLines(const Lines& before, const Lines& after)
        : m_columns(std::size_t(after.size()) + 1)
        , m_counts((std::size_t(before.size()) + 1) * m_columns)
    {
        for (int i = int(before.size()) - 1; i >= 0; --i) {
            for (int j = int(after.size()) - 1; j >= 0; --j) {
                at(i, j) = before.at(i) == after.at(j) ? at(i + 1, j + 1) + 1
                                                       : std::max(at(i + 1, j), at(i, j + 1));
            }
        }
    }

    int& at(int i, int j) { return m_counts[std::size_t(i) * m_columns + std::size_t(j)]; }

private:
    std::size_t m_columns;
    std::vector<int> m_counts;
};

} // namespace

QVector<DiffLine> lineDiff(const QByteArray& before, const QByteArray& after)
{
    const Lines old = linesOf(before);
    const Lines now = linesOf(after);
    const int begin =
        int(std::mismatch(old.begin(), old.end(), now.begin(), now.end()).first - old.begin());
    const int most = int(std::min(old.size(), now.size())) - begin;
    int same = 0; // at the end
    while (same < most && old.at(old.size() - 1 - same) == now.at(now.size() - 1 - same))
        ++same;
    const Lines oldMiddle = old.mid(begin, old.size() - same - begin);
    const Lines newMiddle = now.mid(begin, now.size() - same - begin);

    QVector<DiffLine> lines;
    for (int i = 0; i < begin; ++i)
        lines += DiffLine{DiffLine::Same, i + 1, old.at(i)};
    int i = 0;
    int j = 0;
    // Of very long ones all goes and all comes.
    constexpr qint64 mostCounts = 25000000;
    if (qint64(oldMiddle.size()) * newMiddle.size() <= mostCounts) {
        CommonLines common(oldMiddle, newMiddle);
        while (i < oldMiddle.size() && j < newMiddle.size()) {
            if (oldMiddle.at(i) == newMiddle.at(j)) {
                lines += DiffLine{DiffLine::Same, begin + i + 1, oldMiddle.at(i)};
                ++i;
                ++j;
            } else if (common.at(i + 1, j) >= common.at(i, j + 1)) {
                lines += DiffLine{DiffLine::Removed, begin + i + 1, oldMiddle.at(i)};
                ++i;
            } else {
                lines += DiffLine{DiffLine::Added, begin + j + 1, newMiddle.at(j)};
                ++j;
            }
        }
    }
    for (; i < oldMiddle.size(); ++i)
        lines += DiffLine{DiffLine::Removed, begin + i + 1, oldMiddle.at(i)};
    for (; j < newMiddle.size(); ++j)
        lines += DiffLine{DiffLine::Added, begin + j + 1, newMiddle.at(j)};
    for (int k = int(old.size()) - same; k < old.size(); ++k)
        lines += DiffLine{DiffLine::Same, k + 1, old.at(k)};
    return lines;
}
