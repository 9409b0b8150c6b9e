#pragma once

#include "devandthreaditem.h"
#include "noteitem.h"
#include "recordfields_p.h"

// The fields that derived records begin with. They are asked for on first use only: before that,
// the keys of another file need not be there yet.

template <typename Record>
auto basicNoteFields()
{
    return std::array{
        recordField<Record, &BasicNoteItem::currency>(BasicNoteItem::CURRENCY),
        recordField<Record, &BasicNoteItem::denomination>(BasicNoteItem::DENOMINATION),
        recordField<Record, &BasicNoteItem::billType>(BasicNoteItem::BILL_TYPE),
    };
}

template <typename Record>
auto noteFields()
{
    return joined(basicNoteFields<Record>(),
                  std::array{recordField<Record, &NoteItem::count>(NoteItem::COUNT)});
}

template <typename Record>
auto devAndThreadFields()
{
    return std::array{
        recordField<Record, &DevAndThreadItem::deviceId>(DevAndThreadItem::DEVICE_ID),
        recordField<Record, &DevAndThreadItem::threadId>(DevAndThreadItem::THREAD_ID),
    };
}
