#pragma once

#include "core/document/project_document.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>

namespace tavmoor {

/// A field of the document, to be changed; the alternatives are all types that a field can have.
using ValueRef = std::variant<std::string*, std::int16_t*, std::int32_t*, double*, bool*>;
/// The same, to be read.
using ConstValueRef = std::variant<const std::string*, const std::int16_t*, const std::int32_t*,
                                   const double*, const bool*>;

/// How to reach a field. `row` is the slot of a field that stands in a table, otherwise unused.
struct FieldAccess {
    ValueRef (*edit)(ProjectDocument& document, std::size_t row) = nullptr;
    ConstValueRef (*read)(const ProjectDocument& document, std::size_t row) = nullptr;
};

namespace detail {

template <typename T>
struct IsTable : std::false_type {};
template <typename T, std::size_t N>
struct IsTable<std::array<T, N>> : std::true_type {};

template <typename Object>
auto& Row(Object& object, std::size_t row) {
    if constexpr (IsTable<std::remove_const_t<Object>>::value) {
        return object[row];
    } else {
        return object;
    }
}

template <auto First, auto... Rest, typename Object>
auto* Walk(Object& object, std::size_t row) {
    auto& next = Row(object.*First, row);
    if constexpr (sizeof...(Rest) == 0) {
        return &next;
    } else {
        return Walk<Rest...>(next, row);
    }
}

} // namespace detail

/// The access along a path of members from the document; a table on the way is entered at `row`.
template <auto... Path>
inline constexpr FieldAccess At{
    [](ProjectDocument& document, std::size_t row) -> ValueRef {
        return detail::Walk<Path...>(document, row);
    },
    [](const ProjectDocument& document, std::size_t row) -> ConstValueRef {
        return detail::Walk<Path...>(document, row);
    },
};

} // namespace tavmoor
