// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"
#include "acceptorattemptfilteritem.h"
#include "velmolib_global.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The names under which FilterFactory makes filters. They are compared with case.
namespace filters {

extern VELMOLIB_EXPORT const char* const ACCEPT_FILTER; ///< "AcceptFilter"
extern VELMOLIB_EXPORT const char* const ATTEMPTS_FILTER; ///< "AttemptsFilter"
extern VELMOLIB_EXPORT const char* const DENOM_COUNT_FILTER; ///< "DenomCountFilter"
extern VELMOLIB_EXPORT const char* const SESSION_SUM_FILTER; ///< "SessionSumFilter"

} // namespace filters

/// Makes filters, by name or as a configuration implies them, and tells which there are.
class VELMOLIB_EXPORT FilterFactory
{
public:
    /// A new filter with the given parameters (AbstractFilter::setParams), owned by the caller, or
    /// null for an unknown name.
    static AbstractFilter* createFilter(const QString& name, const QVariantMap& params);

    /// New filters that the process's configuration (AcceptorSettings) implies, in the order in
    /// which the service asks them; of one that was never set that is an accept filter that accepts
    /// all. They are the caller's, who gives them to a FilterChain or deletes them, and belong to
    /// the calling thread. The configuration is read without a lock: the caller sees to it that no
    /// other thread changes it meanwhile.
    static QList<AbstractFilter*> createFilters();

    /// The same of a configuration that need not be the process's, so that it may be called from
    /// any thread: the accept filter, an attempts filter for each limit in the order of the limits,
    /// and the session sum filter when @p maxSumm is above 0; otherwise there is no limit. Nothing
    /// fails: a number that is beyond what the filter holds becomes the nearest that it does, -128
    /// or 127 attempts, a sum of 2147483647.
    static QList<AbstractFilter*>
    createFilters(bool acceptAll, const QList<AcceptorAttemptFilterItem>& limits, qint64 maxSumm);

    /// The names of all filters, in a fixed order.
    static QStringList getFilters();

    /// The parameters of a filter; empty for an unknown name.
    static QList<FieldDescription> getFieldsDesc(const QString& name);

    /// Title and explanation of a filter with one vertical bar between them; empty for an unknown
    /// name.
    static QString getFilterDesc(const QString& name);
};
