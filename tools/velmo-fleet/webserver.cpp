// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "webserver.h"

#include "history.h"
#include "terminal/velmo.h"
#include "text/devicename.h"
#include "text/fault.h"
#include "json/jsontext.h"

#include <civetweb.h>
#include <prometheus/text_serializer.h>

#include <QDateTime>
#include <QRegularExpression>

#include <cstring>

using Clock = std::chrono::steady_clock;

namespace {

constexpr int mostHistoryReaders = 4; // of eight threads: the metrics never wait for a database
constexpr std::chrono::seconds presentLasts{5};
constexpr int mostOfName = 1024; // bytes
constexpr char jsonType[] = "application/json";
constexpr char plainType[] = "text/plain; charset=utf-8";

// As the server takes it.
QByteArray listeningAddress(const QString& address)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A(?:(localhost|[0-9.]*|\[[0-9A-Fa-f:.]+\]):)?(\d{1,5})\z)"));
    const QRegularExpressionMatch match = form.match(address);
    const int port = match.captured(2).toInt();
    if (port < 1 || port > 65535) {
        throw Fault{Velmo::tr("--metrics: expected an address such as 127.0.0.1:9464, not \"%1\"")
                        .arg(address)};
    }
    const QString host = match.captured(1);
    if (host.startsWith(QLatin1Char('[')) && !mg_check_feature(MG_FEATURES_IPV6))
        throw Fault{Velmo::tr("--metrics: libcivetweb was built without IPv6 here")};
    return QStringLiteral("%1:%2")
        .arg(host.isEmpty() ? QStringLiteral("127.0.0.1") : host)
        .arg(port)
        .toLatin1();
}

// Why the server did not start. It tells its reasons on the thread that starts it.
thread_local QByteArray complaint;

int takeComplaint(const mg_connection*, const char* text)
{
    if (complaint.isEmpty()) // what follows says less
        complaint = text;
    return 1; // no more is to be done about it
}

// A parameter of a query; null where it has none, or one that is too long for any name.
QByteArray queryValue(const char* query, const char* name)
{
    char value[mostOfName];
    const int length =
        query ? mg_get_var(query, std::strlen(query), name, value, sizeof value) : -1;
    return length < 0 ? QByteArray() : QByteArray(value, length);
}

JsonText nameText(KioskSummary::Condition condition)
{
    return {QString(QLatin1String(KioskSummary::name(condition)))};
}

QByteArray textOf(const History::ConditionSpan& span)
{
    return JsonText::object({{"condition", nameText(span.condition)},
                             {"began", KioskSummary::momentText(span.began)},
                             {"ended", KioskSummary::momentText(span.ended)}});
}

QByteArray textOf(const History::FaultSpan& span)
{
    return JsonText::object({{"device", span.fault.device},
                             {"thread", span.fault.thread},
                             {"reason", span.fault.reason},
                             {"text", span.fault.text},
                             {"began", KioskSummary::momentText(span.began)},
                             {"ended", KioskSummary::momentText(span.ended)}});
}

QByteArray textOf(const History::Collection& collection)
{
    return JsonText::object(
        {{"device", collection.device},
         {"thread", collection.thread},
         {"name", deviceName(collection.device)},
         {"time", KioskSummary::momentText(collection.time)},
         {"notes", collection.notes ? JsonText(*collection.notes) : JsonText::null()}});
}

template <typename List>
QByteArray listOf(const List& list)
{
    return JsonText::list(list, [](const auto& each) { return textOf(each); });
}

} // namespace

WebServer::WebServer(const QString& address, std::shared_ptr<prometheus::Registry> registry,
                     Sources sources)
    : m_registry(std::move(registry))
    , m_sources(std::move(sources))
{
    const QByteArray ports = listeningAddress(address);
    const char* options[] = {"listening_ports",
                             ports.constData(),
                             "num_threads",
                             "8",
                             "request_timeout_ms",
                             "3000",
                             nullptr};
    mg_callbacks callbacks{};
    callbacks.begin_request = &WebServer::serve;
    callbacks.log_message = &takeComplaint;
    complaint.clear();
    m_context = mg_start(&callbacks, this, options);
    if (!m_context) {
        throw Fault{Velmo::tr("--metrics: \"%1\" cannot be used: %2")
                        .arg(address, QString::fromLocal8Bit(complaint))};
    }
}

WebServer::~WebServer()
{
    mg_stop(m_context);
}

// Called on a thread of the server for every request.
int WebServer::serve(mg_connection* connection)
{
    const mg_request_info* const request = mg_get_request_info(connection);
    const bool isHead = qstrcmp(request->request_method, "HEAD") == 0;
    auto* const server = static_cast<WebServer*>(request->user_data);
    Answer answer{405, plainType, "GET and HEAD only\n"};
    if (isHead || qstrcmp(request->request_method, "GET") == 0)
        answer = server->answerTo(request->local_uri, request->query_string);
    const QByteArray length = QByteArray::number(answer.body.size());
    const char* const headers[][2] = {
        {"Content-Type", answer.type},
        {"Content-Length", length.constData()},
        {"Cache-Control", "no-store"},
        {"Content-Security-Policy", server->m_page.policy.constData()},
        {"Cross-Origin-Resource-Policy", "same-origin"},
        {"Referrer-Policy", "no-referrer"},
        {"X-Content-Type-Options", "nosniff"},
        {"Allow", "GET, HEAD"}};
    mg_response_header_start(connection, answer.status);
    for (const auto& header : headers)
        mg_response_header_add(connection, header[0], header[1], -1);
    mg_response_header_send(connection);
    if (!isHead)
        mg_write(connection, answer.body.constData(), size_t(answer.body.size()));
    return answer.status;
}

WebServer::Answer WebServer::answerTo(const QByteArray& path, const char* query)
{
    if (path == "/")
        return {200, "text/html; charset=utf-8", m_page.html};
    if (path == "/metrics") {
        return {200, "text/plain; version=0.0.4; charset=utf-8",
                QByteArray::fromStdString(
                    prometheus::TextSerializer().Serialize(m_registry->Collect()))};
    }
    const bool all = queryValue(query, "all") == "1";
    if (path == "/kiosks.json")
        return {200, jsonType, m_sources.kiosks(all)};
    if (path == "/history.json") {
        const QByteArray kiosk = queryValue(query, "kiosk");
        if (m_sources.history.isEmpty())
            return {200, jsonType, R"({"kept":false})"};
        return kiosk.isEmpty() ? presentHistory(all) : historyOf(QString::fromUtf8(kiosk));
    }
    return {404, plainType, "not found\n"};
}

WebServer::Answer WebServer::historyOf(const QString& kiosk)
{
    return readHistory([&kiosk](const History& history) {
        return "\"conditions\":" + listOf(history.conditions(kiosk))
            + ",\"faults\":" + listOf(history.faults(kiosk))
            + ",\"collections\":" + listOf(history.collections(kiosk));
    });
}

// Since when kiosks are as they are. However many ask, the database is asked every few seconds
// only.
WebServer::Answer WebServer::presentHistory(bool all)
{
    Present& present = m_present[all];
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (present.answer.status != 0 && Clock::now() - present.from < presentLasts)
            return present.answer;
        present.from = Clock::now(); // others are given the one from before meanwhile
    }
    const Answer answer = readHistory([all](const History& history) {
        const QHash<QString, History::Now> now = history.now(QDateTime::currentMSecsSinceEpoch());
        QByteArray kiosks;
        for (auto kiosk = now.begin(); kiosk != now.end(); ++kiosk) {
            if (!all && kiosk->condition == KioskSummary::Fine)
                continue;
            kiosks += (kiosks.isEmpty() ? "" : ",") + JsonText(kiosk.key()) + ':'
                + JsonText::object({{"condition", nameText(kiosk->condition)},
                                    {"since", KioskSummary::momentText(kiosk->since)},
                                    {"times", kiosk->timesThisMonth}});
        }
        return "\"now\":{" + kiosks + '}';
    });
    const std::lock_guard<std::mutex> lock(m_mutex);
    return present.answer = answer;
}

// @param read gives members of the answer
template <typename Read>
WebServer::Answer WebServer::readHistory(Read read)
{
    const bool isFree = ++m_historyReaders <= mostHistoryReaders;
    Answer answer{200, jsonType, {}};
    try {
        if (!isFree)
            throw Fault{Velmo::tr("too many ask at once")};
        const JsonText time = KioskSummary::momentText(QDateTime::currentMSecsSinceEpoch());
        answer.body =
            R"({"kept":true,"time":)" + time + ',' + read(History(m_sources.history)) + '}';
    } catch (const Fault& fault) {
        answer = {503, jsonType, JsonText::object({{"fault", fault.message}})};
    }
    --m_historyReaders;
    return answer;
}
