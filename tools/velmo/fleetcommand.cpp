// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "brokerconnection.h"
#include "kiosktopic.h"
#include "service/kiosksummary.h"
#include "terminal/table.h"
#include "json/jsontext.h"

#include <QDateTime>
#include <QMap>

#include <algorithm>
#include <utility>
#include <vector>

using std::chrono::milliseconds;
using std::chrono::seconds;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int batch = 1000; // messages between two looks at the clock
constexpr seconds longestConnecting{10};
constexpr int longestName = 40; // in the table; --json has all of it

// What mosquitto has room for in any case, and how often it tells of what it had none for.
constexpr int alwaysRoomFor = 1000;
constexpr seconds droppedPause{11};

constexpr int unknown = KioskSummary::Unknown;

const char* const conditionTexts[] = {
    QT_TRANSLATE_NOOP("Velmo", "unknown"), QT_TRANSLATE_NOOP("Velmo", "silent"),
    QT_TRANSLATE_NOOP("Velmo", "out of order"), QT_TRANSLATE_NOOP("Velmo", "faulty"),
    QT_TRANSLATE_NOOP("Velmo", "fine")};

struct Kiosk
{
    QString name;
    int condition;
    qint64 time;
    QStringList faults;

    const char* conditionName() const
    {
        return condition == unknown ? "unknown"
                                    : KioskSummary::name(KioskSummary::Condition(condition));
    }

    QString conditionText() const
    {
        return condition == unknown ? Velmo::tr("unknown") : Velmo::tr(conditionTexts[condition]);
    }

    QDateTime dateTime() const
    {
        return time == KioskSummary::noTime ? QDateTime() : QDateTime::fromMSecsSinceEpoch(time);
    }
};

// The kiosks whose summaries have arrived.
class Fleet
{
public:
    void take(const QString& name, const QByteArray& text)
    {
        if (text.isEmpty()) { // the kiosk was taken out of the fleet
            m_kiosks.remove(name);
            return;
        }
        try {
            const KioskSummary summary(text);
            QStringList faults;
            for (const KioskFault& fault : summary.faults)
                faults += fault.text;
            m_kiosks.insert(name, {name, summary.condition, summary.time, faults});
        } catch (const Fault& fault) {
            m_kiosks.insert(name, {name, unknown, KioskSummary::noTime, {fault.message}});
        }
    }

    bool isEmpty() const { return m_kiosks.isEmpty(); }
    int size() const { return int(m_kiosks.size()); }

    int count(int condition) const
    {
        return int(std::count_if(m_kiosks.begin(), m_kiosks.end(), [condition](const Kiosk& kiosk) {
            return kiosk.condition == condition;
        }));
    }

    // Those that need somebody, worst first.
    std::vector<Kiosk> toSeeTo() const
    {
        std::vector<Kiosk> found;
        std::copy_if(m_kiosks.begin(), m_kiosks.end(), std::back_inserter(found),
                     [](const Kiosk& kiosk) { return kiosk.condition != KioskSummary::Fine; });
        std::stable_sort(found.begin(), found.end(), [](const Kiosk& left, const Kiosk& right) {
            return left.condition < right.condition;
        });
        return found;
    }

private:
    QMap<QString, Kiosk> m_kiosks;
};

QString totals(const Fleet& fleet)
{
    QStringList parts;
    const auto add = [&](int condition, const QString& text) {
        const int count = fleet.count(condition);
        if (count > 0 || condition == KioskSummary::Fine)
            parts += QStringLiteral("%1 %2").arg(count).arg(text);
    };
    add(unknown, Velmo::tr("unknown"));
    for (int i = KioskSummary::Silent; i <= KioskSummary::Fine; ++i)
        add(i, Velmo::tr(conditionTexts[i]));
    return Velmo::tr("%n kiosks: %1", nullptr, fleet.size()).arg(parts.join(QStringLiteral(", ")))
        + QLatin1Char('\n');
}

// A line for each fault. Texts come from outside: nothing in them reaches the terminal as a
// command.
QString table(const std::vector<Kiosk>& kiosks, int width)
{
    QList<QStringList> rows;
    for (const Kiosk& kiosk : kiosks) {
        QString name = printable(kiosk.name);
        if (name.size() > longestName)
            name = name.left(longestName - 3) + QStringLiteral("...");
        QStringList row{name, kiosk.conditionText(),
                        kiosk.dateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"))};
        const QStringList faults = kiosk.faults.isEmpty() ? QStringList{QString()} : kiosk.faults;
        for (const QString& fault : faults) {
            rows += row + QStringList{printable(fault)};
            row = QStringList{QString(), QString(), QString()};
        }
    }
    if (rows.isEmpty())
        return {};
    return formatTable({Velmo::tr("Kiosk"), Velmo::tr("Condition"), Velmo::tr("Last state"),
                        Velmo::tr("What is wrong")},
                       rows, width)
        + QLatin1Char('\n');
}

QByteArray json(const Fleet& fleet)
{
    QByteArray lines;
    for (const Kiosk& kiosk : fleet.toSeeTo()) {
        const QString time = kiosk.dateTime().toUTC().toString(Qt::ISODateWithMs);
        lines += JsonText::object({{"kind", QStringLiteral("kiosk")},
                                   {"kiosk", kiosk.name},
                                   {"condition", QString(QLatin1String(kiosk.conditionName()))},
                                   {"time", time.isEmpty() ? JsonText::null() : JsonText(time)},
                                   {"faults", JsonText::list(kiosk.faults)}})
            + '\n';
    }
    return lines
        + JsonText::object({{"kind", QStringLiteral("summary")},
                            {"kiosks", fleet.size()},
                            {"unknown", fleet.count(unknown)},
                            {"silent", fleet.count(KioskSummary::Silent)},
                            {"out_of_order", fleet.count(KioskSummary::OutOfOrder)},
                            {"faulty", fleet.count(KioskSummary::Faulty)},
                            {"fine", fleet.count(KioskSummary::Fine)}})
        + '\n';
}

QString missingText()
{
    return Velmo::tr("Kiosks may be missing here: the broker had no room for all messages. With "
                     "mosquitto, max_queued_messages sets the room.");
}

// As much of the table as the terminal has room for, and what is known of its truth.
QString screen(const Fleet& fleet, const BrokerConnection& broker)
{
    const int height = outputHeight();
    std::vector<Kiosk> kiosks = fleet.toSeeTo();
    if (height > 0 && kiosks.size() > size_t(height)) // each takes a line or more
        kiosks.resize(size_t(height));
    QStringList lines = table(kiosks, outputWidth()).split(QLatin1Char('\n'));
    const int room = height - 5;
    if (room > 0 && lines.size() > room) {
        lines = lines.mid(0, room);
        lines += QStringLiteral("...");
    }
    QString state = QDateTime::currentDateTime().toString(QStringLiteral("hh:mm:ss  "));
    state += broker.fault().isEmpty() ? totals(fleet)
                                      : broker.fault() + QStringLiteral(". ")
            + Velmo::tr("The table is from before.") + QLatin1Char('\n');
    if (broker.dropped() > 0)
        state += missingText() + QLatin1Char('\n');
    return QStringLiteral("\033[2J\033[H") + lines.join(QLatin1Char('\n')) + QLatin1Char('\n')
        + state;
}

// Follows what the broker has of the kiosks.
class FleetWatch
{
public:
    explicit FleetWatch(const Arguments& arguments)
        : m_isJson(arguments.isSet(options::json))
        , m_isWatched(arguments.isSet(options::watch))
        , m_pause(arguments.number(options::wait))
        , m_summaries(arguments.value(options::summaries))
        , m_broker(arguments.broker(),
                   [this](const QString& topic, const QByteArray& text, bool isRetained) {
                       take(topic, text, isRetained);
                   })
    {
        m_broker.watchDropped();
        m_broker.subscribe(m_summaries.filter(), 1);
    }

    // Until all summaries have come; for ever where they are watched.
    void gather()
    {
        const auto begin = Clock::now();
        while (!m_broker.isSubscribed()) {
            work();
            if (Clock::now() - begin > longestConnecting && !m_isWatched)
                throw Fault{Velmo::tr("the broker does not answer")};
        }
        m_lastKept = Clock::now();
        while (m_isWatched || Clock::now() - m_lastKept < m_pause)
            work();
        const bool mayMiss = m_fleet.size() > alwaysRoomFor;
        while (mayMiss && m_broker.dropped() == 0 && Clock::now() - m_lastKept < droppedPause)
            work();
        m_broker.disconnect();
    }

    // Returns the exit code.
    int tell() const
    {
        if (m_fleet.isEmpty())
            throw Fault{Velmo::tr("no kiosk has a summary at \"%1\"").arg(m_summaries.filter())};
        print(m_isJson ? QString::fromUtf8(json(m_fleet))
                       : table(m_fleet.toSeeTo(), outputWidth()) + totals(m_fleet));
        if (m_broker.dropped() > 0)
            printError(missingText());
        return m_fleet.count(unknown) > 0 || m_broker.dropped() > 0 ? exitBadInput : exitSuccess;
    }

private:
    void take(const QString& topic, const QByteArray& text, bool isRetained)
    {
        const QString kiosk = m_summaries.kioskOf(topic);
        // A new connection brings all that are kept once more, and tells nothing of those that are
        // gone.
        if (isRetained && std::exchange(m_isFromBefore, false))
            m_fleet = Fleet();
        if (!kiosk.isEmpty())
            m_fleet.take(kiosk, text);
        if (isRetained)
            m_lastKept = Clock::now();
    }

    void work()
    {
        m_broker.wait(milliseconds(200));
        m_broker.read(batch);
        m_broker.write();
        const bool isLost = !m_broker.fault().isEmpty();
        m_isFromBefore = m_isFromBefore || isLost;
        if (isLost && !m_isWatched)
            throw Fault{m_broker.fault()};
        const bool isKnown = isLost || m_broker.isSubscribed();
        if (m_isWatched && isKnown && Clock::now() - m_drawn >= seconds(1)) {
            m_drawn = Clock::now();
            print(screen(m_fleet, m_broker));
        }
    }

    const bool m_isJson;
    const bool m_isWatched;
    const seconds m_pause;
    const KioskTopic m_summaries;
    BrokerConnection m_broker;
    Fleet m_fleet;
    bool m_isFromBefore = false; // the connection was lost since
    Clock::time_point m_lastKept; // when a summary came that the broker had kept
    Clock::time_point m_drawn;
};

} // namespace

int fleetCommand(const Arguments& arguments)
{
    if (arguments.isSet(options::json) && arguments.isSet(options::watch))
        throw arguments.usageFault();
    FleetWatch fleet(arguments);
    fleet.gather();
    return fleet.tell();
}
