// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devicestatesconst.h"

namespace deviceStatesConst {

const QString DS_IDLING = QStringLiteral("idling");
const QString DS_ACCEPTING = QStringLiteral("accepting");
const QString DS_ACCEPTED = QStringLiteral("accepted");
const QString DS_REJECTED = QStringLiteral("rejected");
const QString DS_STACKING = QStringLiteral("stacking");
const QString DS_STACKED = QStringLiteral("stacked");
const QString DS_RETURNING = QStringLiteral("returning");
const QString DS_RETURNED = QStringLiteral("returned");
const QString DS_JAMMED = QStringLiteral("jammed");
const QString DS_BUSY = QStringLiteral("busy");
const QString DS_ERROR = QStringLiteral("error");
const QString DS_UPDATING = QStringLiteral("updating");
const QString DS_DISPENSING = QStringLiteral("dispensing");
const QString DS_DISPENSED = QStringLiteral("dispensed");
const QString DS_FLOATING = QStringLiteral("floating");
const QString DS_FLOATED = QStringLiteral("floated");
const QString DS_EMPTYING = QStringLiteral("emptying");
const QString DS_EMPTIED = QStringLiteral("emptied");

} // namespace deviceStatesConst

namespace deviceStateDescConst {

const QString ENABLED = QStringLiteral("enabled");
const QString STATE = QStringLiteral("state");
const QString STACKER_PRESENT = QStringLiteral("stacker_present");
const QString STACKER_FULL = QStringLiteral("stacker_full");
const QString CASH = QStringLiteral("cash");
const QString ERROR_TEXT = QStringLiteral("error_text");
const QString ERROR_CRITICAL = QStringLiteral("error_critical");
const QString HALT = QStringLiteral("halt");
const QString STATE_TEXT = QStringLiteral("state_text");
const QString THREAD_ID = QStringLiteral("thread_id");
const QString DEVICE_ID = QStringLiteral("device_id");
const QString SESSION_SUM = QStringLiteral("session_sum");
const QString CURRENT_NOTE = QStringLiteral("current_note");
const QString CURRENT_CHANNEL = QStringLiteral("current_channel");
const QString DISPENSED_SUM = QStringLiteral("dispensed_sum");
const QString ID_STRING = QStringLiteral("id_string");
const QString ONLINE = QStringLiteral("online");

} // namespace deviceStateDescConst
