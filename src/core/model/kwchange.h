#pragma once

#include "core/model/kwobject.h"

/// Stores a value if it differs from what an object has; true if it did.
template <typename Object, typename Value>
bool change(Object *object, const Value &now, void (Object::*set)(const Value &),
            const Value &value)
{
    if (now == value)
        return false;
    (object->*set)(value);
    return true;
}

template <typename Object, typename Value>
bool change(Object *object, Value now, void (Object::*set)(Value), Value value)
{
    if (now == value)
        return false;
    (object->*set)(value);
    return true;
}

/// Notes are set through the common base.
inline bool changeNotes(KWObject *object, const QString &notes)
{
    return change(object, object->notes(), &KWObject::setNotes, notes);
}
