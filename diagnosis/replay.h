#pragma once

#include "acceptorstate.h"
#include "arrayfile.h"
#include "devicestateworker.h"
#include "filterchain.h"
#include "sessionline.h"

#include <QString>

/// What one line of a session file led to.
struct ReplayStep
{
    bool startsSession;
    QString state;
    int note;
    int sessionSum;
    bool sent; ///< the state differed from the one before and was sent
    AbstractFilter::FilterResult verdict;
    const AbstractFilter* refusedBy; ///< null when the note may be accepted
    bool hasEvent; ///< something was sent in the session; without it, there is no note to refuse
    QString paymentText;
    bool acceptingAllowed;
};

/// Takes a session file's lines the way that the service and a payment screen would: the worker
/// takes the fields and sends the state if it changed, the chain judges the sent states, and the
/// state is published and read back by the screen.
class Replay
{
public:
    /// loadFilters() or filtersOfSettings().
    using FilterSource = QList<AbstractFilter*> (*)(const ArrayFile& file, FilterChain& chain);

    /// Throws Fault for a bad file.
    Replay(FilterSource source, const ArrayFile& filters);

    ReplayStep take(const SessionLine& line);

private:
    const AbstractFilter* firstRefusing() const;

    DeviceStateWorker m_worker;
    FilterChain m_chain;
    QList<AbstractFilter*> m_filters; // owned by the chain, in its order
    AcceptorState m_screen;
};
