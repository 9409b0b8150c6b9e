// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashledger.h"

#include "text/diagnosis.h"

#include <algorithm>

namespace {

const quint32 cashBit = DeviceReport::bit(deviceStateDescConst::CASH);

// A copy of the books, in which is entered what is not settled yet.
class Outlook : public MoneyWatcher
{
public:
    void add(std::pair<quint32, quint32> device, const CashBook& book)
    {
        m_books.emplace(device, book);
    }

    std::vector<CashPeriod> periods()
    {
        std::vector<CashPeriod> all;
        for (auto& [device, book] : m_books)
            all.push_back(book.current());
        return all;
    }

private:
    void takePiece(const MoneyTrail& trail, const PieceEnd& piece) override
    {
        if (CashBook* const book = bookOf(trail))
            book->takePiece(piece);
    }
    void takeUnfinished(const MoneyTrail& trail, const UnfinishedAct& act) override
    {
        if (CashBook* const book = bookOf(trail))
            book->takeUnfinished(act);
    }
    CashBook* bookOf(const MoneyTrail& trail)
    {
        const auto book = m_books.find({trail.device().deviceId(), trail.device().threadId()});
        return book == m_books.end() ? nullptr : &book->second;
    }

    std::map<std::pair<quint32, quint32>, CashBook> m_books; // by device and thread
};

} // namespace

CashLedger::CashLedger(const QStringList& logs, std::optional<quint32> device, Receiver receiver)
    : m_logs(logs)
    , m_device(device)
    , m_receiver(std::move(receiver))
    , m_explainer(
          FilterSet({}),
          [this](const NoteAnswer& answer) {
              if (isAsked(answer))
                  m_summary.add(answer);
          },
          this)
{
}

CashBook& CashLedger::bookOf(const MoneyTrail& trail)
{
    const LogDevice& device = trail.device();
    std::unique_ptr<CashBook>& book = m_books[{device.deviceId(), device.threadId()}];
    if (!book)
        book = std::make_unique<CashBook>(trail, m_now, m_logs);
    return *book;
}

void CashLedger::take(const SessionLine& line, qint64 position)
{
    m_now = {position, line.time()};
    m_explainer.take(line, position);
}

void CashLedger::skipLine(qint64 position)
{
    m_now = {position, {}};
    m_explainer.skipLine();
    for (const auto& [device, book] : m_books)
        book->skipLine();
}

void CashLedger::beginHere(qint64 position, const LogTime& time)
{
    if (m_books.empty())
        return;
    m_now = position > 0 ? LogMoment{position, time} : LogMoment{m_now.position + 1, m_now.time};
    m_beginning = m_now;
    m_summary = Summary();
    m_sessionsBefore = qMax(0, m_explainer.sessions() - 1);
    for (const auto& [device, book] : m_books)
        book->beginHere();
}

bool CashLedger::isAsked(const LogPlace& place) const
{
    return isAsked(place.device)
        && !(m_beginning && LogMoment{place.line, place.time}.isBefore(*m_beginning));
}

void CashLedger::finish()
{
    m_explainer.finish();
    m_summary.sessions = m_explainer.sessions() - m_sessionsBefore;
}

int CashLedger::devices() const
{
    return int(std::count_if(m_books.begin(), m_books.end(),
                             [this](const auto& book) { return isAsked(book.first.first); }));
}

std::vector<CashPeriod> CashLedger::periods(bool isLogMissing) const
{
    std::vector<CashPeriod> all;
    for (const auto& [device, book] : m_books) {
        if (!isAsked(device.first))
            continue;
        for (CashPeriod& period : book->periods())
            all.push_back(std::move(period));
    }
    if (!isLogMissing)
        return all;
    for (CashPeriod& period : all) {
        period.unseen = PieceRange::atLeast(0);
        for (CashPeriod::Content& content : period.course)
            content.sum = period.unseen;
        for (CashRow& row : period.rows) {
            row.now = row.flow.opening = PieceRange::atLeast(0);
            row.flow.in.max.reset();
            row.flow.out.max.reset();
            row.why += Diagnosis::tr("a log could not be read");
        }
    }
    return all;
}

std::vector<CashPeriod> CashLedger::now() const
{
    Outlook outlook;
    for (const auto& [device, book] : m_books) {
        if (isAsked(device.first))
            outlook.add(device, *book);
    }
    m_explainer.foresee(outlook);
    return outlook.periods();
}

void CashLedger::takeReport(const MoneyTrail& trail, const LogStep& step)
{
    bookOf(trail).takeReport((step.reported & cashBit) != 0);
}

void CashLedger::takeContradiction(const MoneyTrail& trail, const Contradiction& found)
{
    bookOf(trail).takeContradiction(found);
    if (isAsked(found))
        m_receiver(found);
}

void CashLedger::takePiece(const MoneyTrail& trail, const PieceEnd& piece)
{
    bookOf(trail).takePiece(piece);
}

void CashLedger::takeChange(const MoneyTrail& trail, MoneyAct act, const ChannelChange& change)
{
    bookOf(trail).takeChange(act, change);
}

void CashLedger::takeChannel(const MoneyTrail& trail, size_t channel)
{
    bookOf(trail).takeChannel(channel);
}

void CashLedger::takeCassette(const MoneyTrail& trail, bool isIn)
{
    bookOf(trail).takeCassette(isIn);
}

void CashLedger::takeUnfinished(const MoneyTrail& trail, const UnfinishedAct& act)
{
    bookOf(trail).takeUnfinished(act);
}
