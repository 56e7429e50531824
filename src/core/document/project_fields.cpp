#include "core/document/project_fields.h"

#include "core/document/field_tables.h"
#include "core/text/text_case.h"

#include <algorithm>
#include <charconv>

namespace tavmoor {

namespace {

std::vector<FieldBlock> JoinTables() {
    std::vector<FieldBlock> joined;
    for (const auto table :
         {TitleBlocks(), CommandBlocks(), ScreenBlocks(), MessageBlocks(), CanvasBlocks()}) {
        joined.insert(joined.end(), table.begin(), table.end());
    }
    return joined;
}

/// A key taken apart into the name and the number of the row.
struct NumberedKey {
    std::string_view name;
    std::size_t row = 0;
};

std::optional<NumberedKey> TakeApart(std::string_view key, KeyForm form) {
    if (form == KeyForm::Single) {
        return NumberedKey{key, 0};
    }
    if (form == KeyForm::Parentheses) {
        if (key.empty() || key.back() != ')') {
            return std::nullopt;
        }
        key.remove_suffix(1);
    }
    const std::size_t behind_name = key.find_last_not_of("0123456789") + 1;
    NumberedKey result{key.substr(0, behind_name), 0};
    const std::string_view digits = key.substr(behind_name);
    const bool padded = digits.size() > 1 && digits.front() == '0';
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), result.row);
    if (digits.empty() || padded || error != std::errc()) {
        return std::nullopt;
    }
    if (form == KeyForm::Parentheses) {
        if (result.name.empty() || result.name.back() != '(') {
            return std::nullopt;
        }
        result.name.remove_suffix(1);
    }
    return result;
}

std::optional<FieldPlace> FindInBlock(const FieldBlock& block, std::string_view key) {
    const auto numbered = TakeApart(key, block.keyForm);
    if (!numbered || numbered->row < block.first || numbered->row > block.last) {
        return std::nullopt;
    }
    for (const FieldSpec& field : block.fields) {
        if (!field.writeOnly && EqualWithoutCase(field.key, numbered->name)) {
            return FieldPlace{&block, &field, numbered->row};
        }
    }
    return std::nullopt;
}

void AppendPackageFiles(std::vector<std::string>& paths, const FieldBlock& block,
                        const FieldSpec& field, const ProjectDocument& document) {
    for (std::size_t row = block.first; row <= block.packageLast; ++row) {
        const std::string& path = *std::get<const std::string*>(field.access.read(document, row));
        if (path.empty()) {
            if (block.writeRows == WriteRows::UntilFirstEmpty) {
                return;
            }
            continue;
        }
        if (std::find(paths.begin(), paths.end(), path) == paths.end()) {
            paths.push_back(path);
        }
    }
}

struct PackageField {
    const FieldBlock* block;
    const FieldSpec* field;
};

std::vector<PackageField> PackageFieldsInOrder() {
    std::vector<PackageField> fields;
    for (const FieldBlock& block : ProjectBlocks()) {
        for (const FieldSpec& field : block.fields) {
            if (field.packageOrder > 0) {
                fields.push_back({&block, &field});
            }
        }
    }
    std::sort(fields.begin(), fields.end(), [](const PackageField& a, const PackageField& b) {
        return a.field->packageOrder < b.field->packageOrder;
    });
    return fields;
}

} // namespace

std::span<const FieldBlock> ProjectBlocks() {
    static const std::vector<FieldBlock> blocks = JoinTables();
    return blocks;
}

std::optional<FieldPlace> FindField(std::string_view section, std::string_view key) {
    for (const FieldBlock& block : ProjectBlocks()) {
        if (EqualWithoutCase(block.section, section)) {
            if (const auto place = FindInBlock(block, key)) {
                return place;
            }
        }
    }
    return std::nullopt;
}

std::string KeySuffix(KeyForm form, std::size_t row) {
    if (form == KeyForm::Single) {
        return {};
    }
    std::string number = std::to_string(row);
    return form == KeyForm::Suffix ? number : "(" + number + ")";
}

std::string KeyOf(const FieldPlace& place) {
    return std::string(place.field->key) + KeySuffix(place.block->keyForm, place.row);
}

std::vector<std::string> PackageFilesOf(const ProjectDocument& document, int firstOrder,
                                        int lastOrder) {
    static const std::vector<PackageField> fields = PackageFieldsInOrder();
    std::vector<std::string> paths;
    for (const auto& [block, field] : fields) {
        if (field->packageOrder >= firstOrder && field->packageOrder <= lastOrder) {
            AppendPackageFiles(paths, *block, *field, document);
        }
    }
    return paths;
}

} // namespace tavmoor
