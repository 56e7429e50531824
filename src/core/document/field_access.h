#pragma once

#include "core/document/project_document.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
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

/// A field by the type that it has, for code that knows the field when it is compiled: windows,
/// which bind controls to fields.
template <typename Value>
struct FieldOf {
    Value& (*reach)(ProjectDocument& document, std::size_t row) = nullptr;
    std::size_t row = 0;

    [[nodiscard]] Value& In(ProjectDocument& document) const { return reach(document, row); }
};

namespace detail {

template <typename T>
struct IsTable : std::false_type {};
template <typename T, std::size_t N>
struct IsTable<std::array<T, N>> : std::true_type {};

template <typename Class, typename Member>
constexpr bool LeadsToTable(Member Class::* /*member*/) {
    return IsTable<Member>::value;
}

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

/// A path of members from the document to a field; a table on the way is entered at a row. The
/// tables of fields take it as a FieldAccess. For windows it is a FieldOf the field's type, where a
/// path through a table needs its row: `At<&ProjectDocument::Fontovi>[3]`.
template <auto... Members>
class FieldPath {
    static constexpr bool HasRows = (detail::LeadsToTable(Members) || ...);

public:
    using Value = std::remove_pointer_t<decltype(detail::Walk<Members...>(
        std::declval<ProjectDocument&>(), 0))>;

    constexpr operator FieldAccess() const {
        return {
            [](ProjectDocument& document, std::size_t row) -> ValueRef {
                return detail::Walk<Members...>(document, row);
            },
            [](const ProjectDocument& document, std::size_t row) -> ConstValueRef {
                return detail::Walk<Members...>(document, row);
            },
        };
    }

    constexpr operator FieldOf<Value>() const requires(!HasRows) { return {&Reach}; }

    constexpr FieldOf<Value> operator[](std::size_t row) const requires(HasRows) {
        return {&Reach, row};
    }

private:
    static Value& Reach(ProjectDocument& document, std::size_t row) {
        return *detail::Walk<Members...>(document, row);
    }
};

template <auto... Members>
inline constexpr FieldPath<Members...> At{};

} // namespace tavmoor
