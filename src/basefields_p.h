// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "recordfields_p.h"

// The fields that derived records begin with. They know the records that they belong to only as
// Record, and are asked for on first use only: before that, the keys of another file need not be
// there yet.

template <typename Record>
auto basicNoteFields()
{
    return std::array{
        recordField<Record, &Record::currency>(Record::CURRENCY),
        recordField<Record, &Record::denomination>(Record::DENOMINATION),
        recordField<Record, &Record::billType>(Record::BILL_TYPE),
    };
}

template <typename Record>
auto noteFields()
{
    return joined(basicNoteFields<Record>(),
                  std::array{recordField<Record, &Record::count>(Record::COUNT)});
}

template <typename Record>
auto devAndThreadFields()
{
    return std::array{
        recordField<Record, &Record::deviceId>(Record::DEVICE_ID),
        recordField<Record, &Record::threadId>(Record::THREAD_ID),
    };
}
