// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "historyschema.h"

namespace {

struct Step
{
    int version; // that it is a part of
    const char* sql; // "%1" is where SQLite is told to keep the rows in the order of the key
};

// Added to at the end. A period without an end is open: there is one of a condition at most, and
// one of each fault.
constexpr Step steps[] = {
    {1, "CREATE TABLE velmo_history(version INTEGER NOT NULL)"},
    {1,
     "CREATE TABLE writers(part TEXT PRIMARY KEY, worker TEXT NOT NULL, token TEXT NOT NULL,"
     " epoch BIGINT NOT NULL, until BIGINT NOT NULL)"},
    {1,
     "CREATE TABLE kiosks(kiosk TEXT PRIMARY KEY, changed BIGINT NOT NULL,"
     " message BIGINT NOT NULL)"},
    {1,
     "CREATE TABLE conditions(kiosk TEXT NOT NULL, began BIGINT NOT NULL, ended BIGINT,"
     " condition TEXT NOT NULL, message BIGINT NOT NULL, PRIMARY KEY(kiosk, began))%1"},
    {1, "CREATE UNIQUE INDEX conditions_open ON conditions(kiosk) WHERE ended IS NULL"},
    {1, "CREATE INDEX conditions_ended ON conditions(ended)"},
    {1,
     "CREATE TABLE faults(kiosk TEXT NOT NULL, began BIGINT NOT NULL, ended BIGINT,"
     " device INTEGER NOT NULL, thread INTEGER NOT NULL, reason TEXT NOT NULL,"
     " fault TEXT NOT NULL, message BIGINT NOT NULL,"
     " PRIMARY KEY(kiosk, began, device, thread, reason))"},
    {1,
     "CREATE UNIQUE INDEX faults_open ON faults(kiosk, device, thread, reason)"
     " WHERE ended IS NULL"},
    {1, "CREATE INDEX faults_ended ON faults(ended)"},
    {1,
     "CREATE TABLE hours(kiosk TEXT NOT NULL, device INTEGER NOT NULL, thread INTEGER NOT NULL,"
     " hour BIGINT NOT NULL, inserted BIGINT NOT NULL, rejected BIGINT NOT NULL,"
     " returned BIGINT NOT NULL, PRIMARY KEY(kiosk, device, thread, hour))%1"},
    {1, "CREATE INDEX hours_hour ON hours(hour)"},
    {1,
     "CREATE TABLE levels(kiosk TEXT NOT NULL, device INTEGER NOT NULL, thread INTEGER NOT NULL,"
     " channel INTEGER NOT NULL, denomination INTEGER NOT NULL, currency TEXT NOT NULL,"
     " bill_type INTEGER NOT NULL, hour BIGINT NOT NULL, count BIGINT NOT NULL,"
     " PRIMARY KEY(kiosk, device, thread, channel, denomination, currency, bill_type, hour))%1"},
    {1,
     "CREATE TABLE channels(kiosk TEXT NOT NULL, device INTEGER NOT NULL, thread INTEGER NOT NULL,"
     " channel INTEGER NOT NULL, denomination INTEGER NOT NULL, currency TEXT NOT NULL,"
     " bill_type INTEGER NOT NULL, hour BIGINT NOT NULL, count BIGINT NOT NULL,"
     " PRIMARY KEY(kiosk, device, thread, channel, denomination, currency, bill_type))%1"},
    {1,
     "CREATE TABLE collections(kiosk TEXT NOT NULL, device INTEGER NOT NULL,"
     " thread INTEGER NOT NULL, time BIGINT NOT NULL, notes BIGINT,"
     " PRIMARY KEY(kiosk, device, thread, time))"},
    {1,
     "CREATE TABLE full_cassettes(kiosk TEXT NOT NULL, device INTEGER NOT NULL,"
     " thread INTEGER NOT NULL, time BIGINT NOT NULL, notes BIGINT NOT NULL,"
     " PRIMARY KEY(kiosk, device, thread, time))"},
    {1,
     "CREATE TABLE counters(kiosk TEXT NOT NULL, device INTEGER NOT NULL,"
     " thread INTEGER NOT NULL, time BIGINT NOT NULL, inserted BIGINT NOT NULL,"
     " rejected BIGINT NOT NULL, returned BIGINT NOT NULL, present INTEGER NOT NULL,"
     " stacker_full INTEGER NOT NULL, notes BIGINT, PRIMARY KEY(kiosk, device, thread))"},
};

} // namespace

std::vector<const char*> HistorySchema::stepsFrom(int older)
{
    std::vector<const char*> missing;
    for (const Step& step : steps) {
        if (step.version > older)
            missing.push_back(step.sql);
    }
    return missing;
}
