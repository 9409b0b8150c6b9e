// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/nearest.h"

#include "text/diagnosis.h"

#include <QVector>

#include <algorithm>
#include <climits>
#include <numeric>

namespace {

// Levenshtein's distance: the least number of characters to insert, remove or replace.
int editDistance(const QString& a, const QString& b)
{
    QVector<int> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < a.size(); ++i) {
        int diagonal = row.at(0);
        row[0] = i + 1;
        for (int j = 0; j < b.size(); ++j) {
            const int replaced = diagonal + (a.at(i) == b.at(j) ? 0 : 1);
            diagonal = row.at(j + 1);
            row[j + 1] = std::min({replaced, row.at(j) + 1, diagonal + 1});
        }
    }
    return row.constLast();
}

} // namespace

QString nearestKnown(const QString& word, const QStringList& known)
{
    QString closest;
    int least = INT_MAX;
    for (const QString& candidate : known) {
        const int distance = editDistance(word, candidate);
        if (distance < least && 2 * distance <= std::max(word.size(), candidate.size())) {
            least = distance;
            closest = candidate;
        }
    }
    return least == INT_MAX ? QString() : Diagnosis::tr(" (nearest known: %1)").arg(closest);
}
