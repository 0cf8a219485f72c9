#pragma once

#include <utility>

// Stores a property's new value and tells whether it differs from the old one, so
// that the caller announces only real changes:
//     if (assignChanged(m_step, step))
//         Q_EMIT stepChanged();
template<typename T, typename Value> bool assignChanged(T &field, Value &&value)
{
    if (field == value)
        return false;
    field = std::forward<Value>(value);
    return true;
}
