#pragma once

#include "core/document/field_access.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace tavmoor {

/// The two files that hold fields: the project file and the runtime configuration.
enum class FieldFile : std::uint8_t { Project, Configuration };

/// How a flag is stored.
enum class FlagForm : std::uint8_t { DaNe, TrueFalse, OneZero, MinusOneZero };

/// What the reader takes for true.
enum class FlagTest : std::uint8_t {
    Exact,       ///< the stored form of true and nothing else
    NeverClears, ///< as Exact, but another value leaves the field
    UnlessFalse, ///< everything but the stored form of false
    UnlessZero,  ///< everything but "0" and ""
    NumberIsOne, ///< every text that says the number one
};

/// What an empty or missing value does to a field that is no flag.
enum class OnEmpty : std::uint8_t { Clear, Keep, Fallback };

/// How the writers treat a text.
enum class TextForm : std::uint8_t {
    Plain,
    Encoded,
    EncodedInConfiguration,
    Size,         ///< rounded to whole points
    ExitCaption,  ///< blank on purpose is `#Empty#`, or "Exit" for a simple template's runtime
    CommandTitle, ///< encoded; two blanks are `#Empty#`
};

/// In which file a field stands, and where.
enum class Place : std::uint8_t { Both, ProjectOnly, ConfigurationOnly, ConfigurationAtSectionEnd };

/// What the reader does once it has read the field.
enum class ReadStep : std::uint8_t { None, Template, Font, ButtonPicture };

/// What becomes of a number that the reader reads; a text that says none leaves the field.
enum class NumberRule : std::uint8_t {
    Any,
    AboveZero,    ///< zero and numbers below leave the field
    OneElseZero,  ///< everything but "1" is 0
    ScreenOption, ///< everything but "1", "2" and "3" is 0; "" leaves the field
};

/// The writers' condition for a field's line: a flag, and what it has to be.
struct FieldGuard {
    FieldAccess flag;
    bool wanted = true;
    std::string_view otherwise; ///< the line that stands instead, "" for none
};

/// One field of the document, declared once; reader, writers, resets, the runtime configuration and
/// the package's file list work from it. New-project values and fallbacks are given in stored form.
struct FieldSpec {
    std::string_view key; ///< without the row's number
    FieldAccess access;

    FlagForm flagForm = FlagForm::TrueFalse;
    std::optional<FlagForm> configurationFlagForm;
    FlagTest flagTest = FlagTest::Exact;
    TextForm textForm = TextForm::Plain;
    NumberRule numberRule = NumberRule::Any;
    OnEmpty onEmpty = OnEmpty::Clear;
    std::string_view fallback;
    std::optional<std::string_view> newValue; ///< nothing: "new project" keeps the field
    bool resetWithObjects = false;
    bool decoded = false;
    bool roundedOnRead = false;
    bool expandsProgramFolder = false;
    bool writeOnly = false;       ///< a second line of a field that another key reads
    bool lineOnlyWhenSet = false; ///< a flag that is off, or option 0, has no line
    int packageOrder = 0;         ///< place among the package's files; 0 for what is no such file
    Place place = Place::Both;
    ReadStep readStep = ReadStep::None;
    std::string_view configurationKey;
    std::string_view lineWhenEmpty; ///< the whole line that stands for "" or a flag that is off
    std::optional<FieldGuard> guard;

private:
    // Stands before its callers: a constant expression can only call a template that is complete.
    template <typename Change>
    [[nodiscard]] constexpr FieldSpec With(Change change) const {
        FieldSpec changed = *this;
        change(changed);
        return changed;
    }

public:
    // The words in which the tables are written; each gives a changed copy.

    [[nodiscard]] constexpr FieldSpec New(std::string_view value) const {
        return With([&](FieldSpec& f) { f.newValue = value; });
    }
    /// Cleared by the reset of the canvas's objects, too.
    [[nodiscard]] constexpr FieldSpec Object() const {
        return With([](FieldSpec& f) { f.resetWithObjects = true; });
    }
    [[nodiscard]] constexpr FieldSpec Flag(FlagForm form, FlagTest test = FlagTest::Exact) const {
        return With([&](FieldSpec& f) {
            f.flagForm = form;
            f.flagTest = test;
        });
    }
    [[nodiscard]] constexpr FieldSpec ConfigurationFlag(FlagForm form) const {
        return With([&](FieldSpec& f) { f.configurationFlagForm = form; });
    }
    [[nodiscard]] constexpr FieldSpec Text(TextForm form) const {
        return With([&](FieldSpec& f) { f.textForm = form; });
    }
    [[nodiscard]] constexpr FieldSpec Encoded() const {
        return With([](FieldSpec& f) {
            f.textForm = TextForm::Encoded;
            f.decoded = true;
        });
    }
    [[nodiscard]] constexpr FieldSpec Decoded() const {
        return With([](FieldSpec& f) { f.decoded = true; });
    }
    [[nodiscard]] constexpr FieldSpec Size() const { return Text(TextForm::Size); }
    [[nodiscard]] constexpr FieldSpec RoundedOnRead() const {
        return With([](FieldSpec& f) { f.roundedOnRead = true; });
    }
    [[nodiscard]] constexpr FieldSpec Number(NumberRule rule) const {
        return With([&](FieldSpec& f) { f.numberRule = rule; });
    }
    [[nodiscard]] constexpr FieldSpec EmptyKeeps() const {
        return With([](FieldSpec& f) { f.onEmpty = OnEmpty::Keep; });
    }
    [[nodiscard]] constexpr FieldSpec EmptyGives(std::string_view value) const {
        return With([&](FieldSpec& f) {
            f.onEmpty = OnEmpty::Fallback;
            f.fallback = value;
        });
    }
    [[nodiscard]] constexpr FieldSpec ProgramFolder() const {
        return With([](FieldSpec& f) { f.expandsProgramFolder = true; });
    }
    [[nodiscard]] constexpr FieldSpec InPackage(int order) const {
        return With([&](FieldSpec& f) { f.packageOrder = order; });
    }
    [[nodiscard]] constexpr FieldSpec Stands(Place where) const {
        return With([&](FieldSpec& f) { f.place = where; });
    }
    [[nodiscard]] constexpr FieldSpec Then(ReadStep step) const {
        return With([&](FieldSpec& f) { f.readStep = step; });
    }
    [[nodiscard]] constexpr FieldSpec WriteOnly(std::string_view keyInConfiguration) const {
        return With([&](FieldSpec& f) {
            f.writeOnly = true;
            f.configurationKey = keyInConfiguration;
        });
    }
    [[nodiscard]] constexpr FieldSpec LineOnlyWhenSet() const {
        return With([](FieldSpec& f) { f.lineOnlyWhenSet = true; });
    }
    [[nodiscard]] constexpr FieldSpec LineWhenEmpty(std::string_view line) const {
        return With([&](FieldSpec& f) { f.lineWhenEmpty = line; });
    }
    [[nodiscard]] constexpr FieldSpec When(FieldAccess flag, bool wanted,
                                           std::string_view otherwise) const {
        return With([&](FieldSpec& f) { f.guard = FieldGuard{flag, wanted, otherwise}; });
    }

    [[nodiscard]] constexpr std::string_view KeyIn(FieldFile file) const {
        return file == FieldFile::Configuration && !configurationKey.empty() ? configurationKey
                                                                             : key;
    }
    [[nodiscard]] constexpr bool StandsIn(FieldFile file) const {
        return file == FieldFile::Project ? place != Place::ConfigurationOnly
                                          : place != Place::ProjectOnly;
    }
};

constexpr FieldSpec Field(std::string_view key, FieldAccess access) {
    FieldSpec field;
    field.key = key;
    field.access = access;
    return field;
}

} // namespace tavmoor
