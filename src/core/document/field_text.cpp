#include "core/document/field_text.h"

#include "core/text/blanks.h"
#include "core/text/number_text.h"
#include "core/text/path_text.h"
#include "core/text/value_encoding.h"

#include <algorithm>

namespace tavmoor {

namespace {

struct FlagTexts {
    std::string_view whenTrue;
    std::string_view whenFalse;
};

constexpr FlagTexts TextsOf(FlagForm form) {
    switch (form) {
    case FlagForm::DaNe:
        return {"Da", "Ne"};
    case FlagForm::OneZero:
        return {"1", "0"};
    case FlagForm::MinusOneZero:
        return {"-1", "0"};
    case FlagForm::TrueFalse:
        break;
    }
    return {"True", "False"};
}

FlagForm FormIn(const FieldSpec& field, FieldFile file) {
    return file == FieldFile::Configuration ? field.configurationFlagForm.value_or(field.flagForm)
                                            : field.flagForm;
}

void AppendEncoded(std::string& text, std::string_view value) {
    const auto encoded = [](char character) {
        return character == '\n' || character == '\r' || character == '&';
    };
    if (std::none_of(value.begin(), value.end(), encoded)) {
        text += value;
    } else {
        text += EncodeText(value);
    }
}

void AppendExitCaption(std::string& text, const ProjectDocument& document, std::string_view value,
                       FieldFile file) {
    const bool blank = TrimBlanks(value).empty();
    if (file == FieldFile::Project) {
        text += blank ? words::BlankCaptionToken : value;
    } else if (!blank) {
        AppendEncoded(text, value);
    } else {
        const bool editor = document.Working.TemplateName == EditorTemplateName;
        text += editor ? words::BlankCaptionToken : words::ExitCaption;
    }
}

void AppendText(std::string& text, const ProjectDocument& document, const FieldSpec& field,
                std::string_view value, FieldFile file) {
    const bool configuration = file == FieldFile::Configuration;
    if (configuration && field.packageOrder > 0) {
        value = FileNameOf(value);
    }
    switch (field.textForm) {
    case TextForm::Plain:
        text += value;
        return;
    case TextForm::Encoded:
        AppendEncoded(text, value);
        return;
    case TextForm::EncodedInConfiguration:
        if (configuration) {
            AppendEncoded(text, value);
        } else {
            text += value;
        }
        return;
    case TextForm::Size:
        text += RoundSize(value);
        return;
    case TextForm::ExitCaption:
        AppendExitCaption(text, document, value, file);
        return;
    case TextForm::CommandTitle:
        if (value == words::BlankCaption) {
            text += words::BlankCaptionToken;
        } else {
            AppendEncoded(text, value);
        }
        return;
    }
}

void SetText(std::string& value, const FieldSpec& field, std::string_view text) {
    const bool caption =
        field.textForm == TextForm::ExitCaption || field.textForm == TextForm::CommandTitle;
    if (caption && text == words::BlankCaptionToken) {
        value = words::BlankCaption;
    } else if (field.roundedOnRead) {
        value = RoundSize(text);
    } else if (field.decoded && text.find("Chr$(") != std::string_view::npos) {
        value = DecodeText(text);
    } else {
        value = text;
    }
}

template <typename Integer>
void SetInteger(Integer& value, const FieldSpec& field, std::string_view text) {
    switch (field.numberRule) {
    case NumberRule::OneElseZero:
        value = text == "1" ? 1 : 0;
        return;
    case NumberRule::ScreenOption:
        if (!text.empty()) {
            const bool known = text == "1" || text == "2" || text == "3";
            value = known ? static_cast<Integer>(text.front() - '0') : Integer{0};
        }
        return;
    case NumberRule::AboveZero:
    case NumberRule::Any:
        break;
    }
    const auto number = ParseInteger<Integer>(text);
    if (number && (field.numberRule == NumberRule::Any || *number > 0)) {
        value = *number;
    }
}

void SetFlag(bool& value, const FieldSpec& field, std::string_view text, FieldFile file) {
    const FlagTexts texts = TextsOf(FormIn(field, file));
    switch (field.flagTest) {
    case FlagTest::Exact:
        value = text == texts.whenTrue;
        return;
    case FlagTest::NeverClears:
        value = value || text == texts.whenTrue;
        return;
    case FlagTest::UnlessFalse:
        value = text != texts.whenFalse;
        return;
    case FlagTest::UnlessZero:
        value = !text.empty() && text != "0";
        return;
    case FlagTest::NumberIsOne:
        value = ParseNumber(text) == 1.0;
        return;
    }
}

void SetValue(ValueRef value, const FieldSpec& field, std::string_view text, FieldFile file) {
    if (auto* const* string = std::get_if<std::string*>(&value)) {
        SetText(**string, field, text);
    } else if (auto* const* small = std::get_if<std::int16_t*>(&value)) {
        SetInteger(**small, field, text);
    } else if (auto* const* large = std::get_if<std::int32_t*>(&value)) {
        SetInteger(**large, field, text);
    } else if (auto* const* real = std::get_if<double*>(&value)) {
        **real = ParseNumber(text).value_or(**real);
    } else if (auto* const* flag = std::get_if<bool*>(&value)) {
        SetFlag(**flag, field, text, file);
    }
}

} // namespace

void AppendFieldText(std::string& text, const ProjectDocument& document, const FieldPlace& place,
                     FieldFile file) {
    const FieldSpec& field = *place.field;
    const ConstValueRef value = place.Read(document);
    if (const auto* const* string = std::get_if<const std::string*>(&value)) {
        AppendText(text, document, field, **string, file);
    } else if (const auto* const* small = std::get_if<const std::int16_t*>(&value)) {
        AppendInteger(text, **small);
    } else if (const auto* const* large = std::get_if<const std::int32_t*>(&value)) {
        AppendInteger(text, **large);
    } else if (const auto* const* real = std::get_if<const double*>(&value)) {
        text += FormatNumber(**real);
    } else if (const auto* const* flag = std::get_if<const bool*>(&value)) {
        const FlagTexts texts = TextsOf(FormIn(field, file));
        text += **flag ? texts.whenTrue : texts.whenFalse;
    }
}

std::string FieldText(const ProjectDocument& document, const FieldPlace& place) {
    std::string text;
    AppendFieldText(text, document, place, FieldFile::Project);
    return text;
}

void AssignFieldText(ProjectDocument& document, const FieldPlace& place, std::string_view text,
                     FieldFile file) {
    const FieldSpec& field = *place.field;
    const ValueRef value = place.Edit(document);
    if (text.empty() && !std::holds_alternative<bool*>(value)) {
        if (field.onEmpty == OnEmpty::Keep) {
            return;
        }
        if (field.onEmpty == OnEmpty::Fallback) {
            text = field.fallback;
        }
    }
    SetValue(value, field, text, file);
}

void ResetField(ProjectDocument& document, const FieldPlace& place) {
    const FieldSpec& field = *place.field;
    if (!field.newValue) {
        return;
    }
    const std::string_view fresh = *field.newValue;
    const bool zero = fresh.empty() || fresh == "0"; // as most fields are: nothing to convert
    const ValueRef value = place.Edit(document);
    if (auto* const* string = std::get_if<std::string*>(&value)) {
        **string = fresh;
    } else if (auto* const* small = std::get_if<std::int16_t*>(&value)) {
        **small = zero ? std::int16_t{0} : ParseInteger<std::int16_t>(fresh).value_or(0);
    } else if (auto* const* large = std::get_if<std::int32_t*>(&value)) {
        **large = zero ? 0 : ParseInteger<std::int32_t>(fresh).value_or(0);
    } else if (auto* const* real = std::get_if<double*>(&value)) {
        **real = zero ? 0 : ParseNumber(fresh).value_or(0);
    } else if (auto* const* flag = std::get_if<bool*>(&value)) {
        **flag = fresh == TextsOf(field.flagForm).whenTrue;
    }
}

bool IsUnset(ConstValueRef value) {
    return std::visit(
        [](const auto* held) {
            using Held = std::remove_cvref_t<decltype(*held)>;
            return *held == Held{};
        },
        value);
}

} // namespace tavmoor
