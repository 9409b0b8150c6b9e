// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "fleetpage.h"

#include <prometheus/registry.h>

#include <QString>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>

struct mg_connection;
struct mg_context;

/// Serves a worker's metrics and the page of its kiosks, for reading only, on threads of its own.
///
/// - / is the page.
/// - /metrics are the metrics, as Prometheus fetches them.
/// - /kiosks.json is the table; without ?all=1 without the kiosks that are fine.
/// - /history.json?kiosk=NAME is what is remembered of a kiosk; without a name, since when the
/// kiosks
///   are as they are.
class WebServer
{
public:
    struct Sources
    {
        /// The table, a JSON object; it is asked for on any thread.
        std::function<QByteArray(bool all)> kiosks;

        QString history; ///< a place as History takes it; empty where none is kept
    };

    /// @param address "127.0.0.1:9464", "[::1]:9464", or a port alone for loopback. Throws Fault
    /// when it cannot be used.
    WebServer(const QString& address, std::shared_ptr<prometheus::Registry> registry,
              Sources sources);
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

private:
    struct Answer
    {
        int status;
        const char* type;
        QByteArray body;
    };

    struct Present
    {
        Answer answer{};
        std::chrono::steady_clock::time_point from;
    };

    static int serve(mg_connection* connection);
    Answer answerTo(const QByteArray& path, const char* query);
    Answer historyOf(const QString& kiosk);
    Answer presentHistory(bool all);
    template <typename Read>
    Answer readHistory(Read read);

    const std::shared_ptr<prometheus::Registry> m_registry;
    const Sources m_sources;
    const FleetPage m_page;
    std::atomic<int> m_historyReaders{0};
    std::mutex m_mutex;
    Present m_present[2]; // by the mutex; without and with the kiosks that are fine
    mg_context* m_context = nullptr;
};
