#include "core/document/field_tables.h"

namespace tavmoor {

namespace {

using D = ProjectDocument;
using M = StartMessageSpec;
using X = ExpirationSpec;

template <auto Member>
constexpr FieldAccess Message = At<&D::Poruke, Member>;
template <auto Member>
constexpr FieldAccess Expiry = At<&D::Expiration, Member>;
template <auto Member>
constexpr FieldAccess Shortcut = At<&D::Precice, &ShortcutList::Precice, Member>;

constexpr FieldSpec Kept(std::string_view key, FieldAccess access, std::string_view newValue = "") {
    return Field(key, access).New(newValue).EmptyKeeps();
}

constexpr FieldSpec MessageFields[] = {
    Kept("Vrsta", Message<&M::Vrsta>, "0"),
    Kept("Naslov", Message<&M::Naslov>),
    Kept("Tekst", Message<&M::Tekst>).Encoded(),
    Kept("Dugme1", Message<&M::Dugme1>),
    Kept("Komanda1", Message<&M::Komanda1>, "-1"),
    Kept("Dugme2", Message<&M::Dugme2>),
    Kept("Komanda2", Message<&M::Komanda2>, "-1"),
    Kept("Meta1", Message<&M::Meta1>),
    Kept("Meta2", Message<&M::Meta2>),
    Kept("Par1", Message<&M::Par1>),
    Kept("Par2", Message<&M::Par2>),
};

constexpr FieldSpec ExpiryFields[] = {
    Field("Enabled", Expiry<&X::Enabled>)
        .New("False")
        .Flag(FlagForm::TrueFalse, FlagTest::NeverClears),
    Kept("Godina", Expiry<&X::Godina>),
    Kept("Mesec", Expiry<&X::Mesec>),
    Kept("Dan", Expiry<&X::Dan>),
    Kept("Naslov", Expiry<&X::Naslov>),
    Kept("Poruka", Expiry<&X::Poruka>).Encoded(),
    Kept("Vrsta", Expiry<&X::Vrsta>),
    Kept("Dugme1Naslov", Expiry<&X::Dugme1Naslov>),
    Kept("Dugme2Naslov", Expiry<&X::Dugme2Naslov>),
    Kept("Dugme1Komanda", Expiry<&X::Dugme1Komanda>, "-1"),
    Kept("Dugme2Komanda", Expiry<&X::Dugme2Komanda>, "-1"),
    Kept("IsticanjeDugme1Meta", Expiry<&X::IsticanjeDugme1Meta>),
    Kept("IsticanjeDugme2Meta", Expiry<&X::IsticanjeDugme2Meta>),
    Kept("IsticanjeDugme1Param", Expiry<&X::IsticanjeDugme1Param>),
    Kept("IsticanjeDugme2Param", Expiry<&X::IsticanjeDugme2Param>),
};

constexpr FieldAccess ShortcutsEnabled = At<&D::Precice, &ShortcutList::Enabled>;

constexpr FieldSpec ShortcutFlag[] = {
    Field("Enabled", ShortcutsEnabled)
        .Flag(FlagForm::TrueFalse, FlagTest::NeverClears)
        .LineOnlyWhenSet(),
};

constexpr FieldSpec ShortcutFields[] = {
    Field("Ime", Shortcut<&ShortcutEntry::Ime>),
    Field("Lokacija", Shortcut<&ShortcutEntry::Lokacija>).EmptyKeeps(),
    Field("Meta", Shortcut<&ShortcutEntry::Meta>).EmptyKeeps(),
    Field("Ekstra", Shortcut<&ShortcutEntry::Ekstra>).EmptyKeeps(),
};

constexpr FieldBlock ShortcutTable() {
    FieldBlock block = Table("Precice", ShortcutFields, KeyForm::Suffix, 0, ShortcutRows - 1);
    block.writeRows = WriteRows::UntilFirstEmpty;
    block.readRows = ReadRows::UntilFirstEmpty;
    block.writtenWhen = ShortcutsEnabled;
    return block;
}

constexpr FieldBlock Blocks[] = {
    Single("Poruke", MessageFields),
    Single("Expiration", ExpiryFields),
    Single("Precice", ShortcutFlag),
    ShortcutTable(),
};

} // namespace

std::span<const FieldBlock> MessageBlocks() {
    return Blocks;
}

} // namespace tavmoor
