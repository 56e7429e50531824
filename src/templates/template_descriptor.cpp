#include "templates/template_descriptor.h"

#include "core/files/profile_file.h"
#include "core/text/number_text.h"

namespace tavmoor {

namespace {

constexpr std::size_t LongestEnable = 256;

} // namespace

std::string TemplateDisplayName(std::string_view descriptorPath) {
    return ReadProfileValue(descriptorPath, "Template", "Name");
}

bool TemplateAcceptsEditor(std::string_view descriptorPath) {
    const std::string enable = ReadProfileValue(descriptorPath, "Additional settings", "Enable");
    return enable.substr(0, LongestEnable) == "1";
}

int ReadCommandLimit(std::string_view descriptorPath) {
    return ParseInteger<std::int32_t>(
               ReadProfileValue(descriptorPath, "Template", "command number"))
        .value_or(0);
}

std::string CommandLimitText(int limit, std::string_view updateHint) {
    if (limit == 0) {
        return "The selected template can't accept additional commands! Try another template. " +
               std::string(updateHint);
    }
    return "The templete you selected can have up to " + std::to_string(limit) +
           " additional commands.";
}

} // namespace tavmoor
