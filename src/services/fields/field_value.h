#pragma once

#include "core/document/project_fields.h"

#include <QtGlobal>

#include <string_view>

namespace tavmoor {

/// The field of a section and key, both the program's own constants, as the type that it has.
template <typename Value>
Value& FieldValue(ProjectDocument& document, std::string_view section, std::string_view key) {
    const auto place = FindField(section, key);
    Value* const* field = nullptr;
    ValueRef reference;
    if (place) {
        reference = place->Edit(document);
        field = std::get_if<Value*>(&reference);
    }
    if (field == nullptr) {
        qFatal("no field of this type: %.*s", static_cast<int>(key.size()), key.data());
    }
    return **field;
}

} // namespace tavmoor
