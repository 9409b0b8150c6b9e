// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "brokerconnection.h"
#include "commands.h"
#include "kiosktopic.h"
#include "terminal/output.h"

#include <QMap>
#include <QSet>

#include <chrono>

using std::chrono::milliseconds;
using std::chrono::seconds;
using Clock = std::chrono::steady_clock;

namespace {

constexpr seconds longestWait{10};

// Takes kiosks out of the fleet: what the broker keeps of them ends. Each empty message is known to
// have arrived when it comes back.
class Forgetting
{
public:
    explicit Forgetting(const Arguments& arguments)
        : m_kiosks(arguments.operands())
        , m_pause(arguments.number(options::wait))
        , m_broker(arguments.broker(), [this](const QString& topic, const QByteArray& text, bool) {
            take(topic, text);
        })
    {
        m_kiosks.removeDuplicates();
        const Option* const all[] = {&options::states, &options::summaries, &options::wills};
        for (const Option* const option : all)
            m_topics.emplace_back(arguments.value(*option));
        for (const QString& kiosk : std::as_const(m_kiosks)) {
            for (const KioskTopic& topic : m_topics) {
                const QString filter = topic.of(kiosk);
                if (topic.kioskOf(filter) != kiosk || kiosk.contains(QLatin1Char('+'))
                    || kiosk.contains(QLatin1Char('#')))
                    throw Fault{
                        Velmo::tr(R"("%1" is no kiosk's name at "%2")").arg(kiosk, topic.filter())};
                m_broker.subscribe(filter, 1);
            }
        }
    }

    // Finds all first: where one is not there, nothing is done.
    void run()
    {
        work([this] { return m_broker.isSubscribed(); });
        pause();
        QStringList missing;
        for (const QString& kiosk : std::as_const(m_kiosks)) {
            if (!m_kept.contains(kiosk))
                missing += QStringLiteral("\"%1\"").arg(kiosk);
        }
        if (!missing.isEmpty())
            throw Fault{Velmo::tr("the broker keeps nothing of %1; nothing was forgotten")
                            .arg(missing.join(QStringLiteral(", ")))};
        for (const QString& kiosk : std::as_const(m_kiosks)) {
            addStateOf(kiosk);
            for (const QString& topic : std::as_const(m_kept[kiosk])) {
                m_waiting += topic;
                m_broker.publish(topic, {});
            }
        }
        work([this] { return m_waiting.isEmpty(); });
        pause(); // for what comes of those that are not gone
        m_broker.disconnect();
    }

    int tell() const
    {
        int exitCode = exitSuccess;
        for (const QString& kiosk : m_kiosks) {
            if (m_alive.contains(kiosk)) {
                printError(
                    Velmo::tr("kiosk %1 still publishes: it will be in the fleet again until "
                              "it is switched off")
                        .arg(kiosk));
                exitCode = exitBadInput;
            } else {
                print(printable(
                          Velmo::tr("%1: forgotten (%2)").arg(kiosk, joined(m_kept.value(kiosk))))
                      + QLatin1Char('\n'));
            }
        }
        return exitCode;
    }

private:
    void take(const QString& topic, const QByteArray& text)
    {
        QString kiosk;
        for (size_t i = 0; i < m_topics.size() && kiosk.isEmpty(); ++i)
            kiosk = m_topics[i].kioskOf(topic);
        if (text.isEmpty()) {
            m_waiting.remove(topic);
            m_ended += topic;
        } else if (m_ended.contains(topic)) {
            m_alive += kiosk;
        } else {
            m_kept[kiosk] += topic;
        }
    }

    // A worker knows the end of a kiosk by its state, even if none is kept.
    void addStateOf(const QString& kiosk)
    {
        const KioskTopic& states = m_topics.front();
        int part = 0;
        for (const QString& topic : std::as_const(m_kept[kiosk])) {
            for (const KioskTopic& each : m_topics) {
                if (each.kioskOf(topic) == kiosk)
                    part = std::max(part, each.partOf(topic));
            }
        }
        if (part > 0 || !states.hasPart())
            m_kept[kiosk] += states.of(kiosk, part);
    }

    void pause()
    {
        const auto begin = Clock::now();
        work([&] { return Clock::now() - begin >= m_pause; });
    }

    template <typename IsDone>
    void work(IsDone isDone)
    {
        const auto begin = Clock::now();
        while (!isDone()) {
            m_broker.wait(milliseconds(50));
            m_broker.read(1000);
            m_broker.write();
            if (!m_broker.fault().isEmpty()) {
                throw Fault{m_broker.fault()
                            + (m_waiting.isEmpty()
                                   ? QString()
                                   : Velmo::tr("; not known to have ended: %1").arg(waiting()))};
            }
            if (Clock::now() - begin > longestWait + m_pause)
                throw Fault{waitedTooLong()};
        }
    }

    QString waitedTooLong() const
    {
        if (m_waiting.isEmpty())
            return Velmo::tr("the broker does not answer");
        return Velmo::tr("the broker does not confirm the end of %1; perhaps there is no right to "
                         "write there")
            .arg(waiting());
    }

    QString waiting() const { return joined(m_waiting); }

    static QString joined(const QSet<QString>& topics)
    {
        QStringList sorted = topics.values();
        sorted.sort();
        return sorted.join(QStringLiteral(", "));
    }

    QStringList m_kiosks;
    const seconds m_pause;
    std::vector<KioskTopic> m_topics;
    BrokerConnection m_broker;
    QMap<QString, QSet<QString>> m_kept; // topics that end, by kiosk
    QSet<QString> m_waiting; // for the empty message of these topics
    QSet<QString> m_ended;
    QSet<QString> m_alive; // kiosks
};

} // namespace

int fleetForgetCommand(const Arguments& arguments)
{
    Forgetting forgetting(arguments);
    forgetting.run();
    return forgetting.tell();
}
