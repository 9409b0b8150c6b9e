// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleet.h"

#include "text/fault.h"
#include "text/nearest.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* conditionTexts[] = {
    QT_TRANSLATE_NOOP("Velmo", "unknown"), QT_TRANSLATE_NOOP("Velmo", "silent"),
    QT_TRANSLATE_NOOP("Velmo", "out of order"), QT_TRANSLATE_NOOP("Velmo", "faulty"),
    QT_TRANSLATE_NOOP("Velmo", "fine")};

// A summary without its devices, of which nothing is shown and which are the most of it: the
// members before and behind them. No text within can look like one of these keys, since it has its
// quotes escaped.
QByteArray withoutDevices(const QByteArray& summary)
{
    const auto begin = summary.indexOf(",\"payment_text\":");
    const auto condition = summary.lastIndexOf(R"(,"condition":")");
    const auto since = condition < 0 ? condition : summary.lastIndexOf(R"(,"since":")", condition);
    const auto end = since > begin ? since : condition;
    return begin < 0 || end < begin ? summary
                                    : summary.left(begin) + ",\"devices\":[]" + summary.mid(end);
}

Fault unknownValue(const Option& option, const QString& value, const QStringList& known)
{
    const QString nearest = nearestKnown(value, known);
    return {Velmo::tr("%1: unknown: \"%2\"").arg(option.dashedName(), value)
            + (nearest.isEmpty() ? Velmo::tr(" (known: %1)").arg(known.join(QStringLiteral(", ")))
                                 : nearest)};
}

QStringList checked(const GivenOptions& arguments, const Option& option, const QStringList& known)
{
    const QStringList given = arguments.values(option);
    for (const QString& value : given) {
        if (!known.contains(value))
            throw unknownValue(option, value, known);
    }
    return given;
}

// "*" for any characters and "?" for one.
QRegularExpression patternOf(const QString& wildcards)
{
    QString pattern = QRegularExpression::escape(wildcards);
    pattern.replace(QStringLiteral("\\*"), QStringLiteral(".*"))
        .replace(QStringLiteral("\\?"), QStringLiteral("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

bool isNaturallyLess(const QString& left, const QString& right)
{
    const auto digitsAt = [](const QString& text, int begin) {
        int end = begin;
        while (end < text.size() && text[end] >= QLatin1Char('0') && text[end] <= QLatin1Char('9'))
            ++end;
        return end - begin;
    };
    int l = 0;
    int r = 0;
    while (l < left.size() && r < right.size()) {
        int leftDigits = digitsAt(left, l);
        int rightDigits = digitsAt(right, r);
        if (leftDigits == 0 || rightDigits == 0) {
            if (left[l] != right[r])
                return left[l] < right[r];
            ++l;
            ++r;
            continue;
        }
        for (; leftDigits > 1 && left[l] == QLatin1Char('0'); --leftDigits)
            ++l;
        for (; rightDigits > 1 && right[r] == QLatin1Char('0'); --rightDigits)
            ++r;
        if (leftDigits != rightDigits)
            return leftDigits < rightDigits;
        const int order = left.mid(l, leftDigits).compare(right.mid(r, rightDigits));
        if (order != 0)
            return order < 0;
        l += leftDigits;
        r += rightDigits;
    }
    const bool isSame = l == left.size() && r == right.size();
    return isSame ? left < right : l == left.size(); // k07 and k7
}

QStringList conditionKeys()
{
    QStringList keys;
    for (int i = KioskSummary::Unknown; i <= KioskSummary::Fine; ++i)
        keys += QLatin1String(KioskSummary::name(KioskSummary::Condition(i)));
    return keys;
}

QString conditionText(KioskSummary::Condition condition)
{
    return Velmo::tr(conditionTexts[condition]);
}

void Fleet::take(const QString& kiosk, const QByteArray& summary)
{
    if (summary.isEmpty()) {
        m_kiosks.remove(kiosk);
        return;
    }
    FleetKiosk told;
    told.name = kiosk;
    try {
        KioskSummary read(withoutDevices(summary));
        told.condition = read.condition;
        told.time = read.time;
        told.since = read.since;
        told.faults = std::move(read.faults);
        KioskFault::sort(told.faults);
        told.isReadable = true;
    } catch (const Fault& fault) {
        told.faults = {{KioskFault::noDevice, KioskFault::noDevice, QStringLiteral("unreadable"),
                        fault.message}};
    }
    m_kiosks.insert(kiosk, told);
}

ConditionCounts Fleet::counts() const
{
    ConditionCounts counts{};
    for (const FleetKiosk& kiosk : m_kiosks)
        ++counts[kiosk.condition];
    return counts;
}

int Fleet::unreadable() const
{
    return int(std::count_if(m_kiosks.begin(), m_kiosks.end(),
                             [](const FleetKiosk& kiosk) { return !kiosk.isReadable; }));
}

FleetSelection::FleetSelection(const GivenOptions& arguments)
    : m_reasons(checked(arguments, options::reason, KioskFault::knownReasons()))
    , m_regions(arguments.values(options::region))
{
    const QStringList names = arguments.values(options::kiosk);
    for (const QString& name : names)
        m_names.push_back(patternOf(name));
    const QStringList conditions = checked(arguments, options::condition, conditionKeys());
    for (const QString& condition : conditions)
        m_conditions.push_back(KioskSummary::conditionOf(condition));
}

bool FleetSelection::isAll() const
{
    return m_names.empty() && m_conditions.empty() && m_reasons.isEmpty() && m_regions.isEmpty();
}

bool FleetSelection::hasName(const QString& kiosk) const
{
    const bool fits = m_names.empty()
        || std::any_of(m_names.begin(), m_names.end(), [&](const QRegularExpression& pattern) {
                          return pattern.match(kiosk).hasMatch();
                      });
    return fits && (m_regions.isEmpty() || m_regions.contains(regionOf(kiosk)));
}

bool FleetSelection::has(const FleetKiosk& kiosk) const
{
    const auto isAsked = [&](const KioskFault& fault) { return m_reasons.contains(fault.reason); };
    return (m_conditions.empty()
            || std::count(m_conditions.begin(), m_conditions.end(), kiosk.condition) > 0)
        && (m_reasons.isEmpty() || std::any_of(kiosk.faults.begin(), kiosk.faults.end(), isAsked))
        && hasName(kiosk.name);
}

std::vector<FleetKiosk> FleetSelection::listed(const Fleet& fleet) const
{
    std::vector<FleetKiosk> found;
    std::copy_if(fleet.kiosks().begin(), fleet.kiosks().end(), std::back_inserter(found),
                 [this](const FleetKiosk& kiosk) {
                     return (kiosk.condition != KioskSummary::Fine || !m_conditions.empty())
                         && has(kiosk);
                 });
    std::sort(found.begin(), found.end(), [](const FleetKiosk& a, const FleetKiosk& b) {
        return a.condition != b.condition ? a.condition < b.condition
                                          : isNaturallyLess(a.name, b.name);
    });
    return found;
}
