#include "core/document/field_tables.h"

namespace tavmoor {

namespace {

using D = ProjectDocument;
using L = CommandLook;
using F = FixedCommand;
using C = CommandEntry;

template <auto Member>
constexpr FieldAccess Look = At<&D::IzvrsneKomande, Member>;
template <auto Member>
constexpr FieldAccess Fixed = At<&D::IzvrsneKomande, &L::Komande, Member>;
template <auto Member>
constexpr FieldAccess Description = At<&D::OpisKomandi, Member>;
template <auto Member>
constexpr FieldAccess Additional = At<&D::DodatneKomande, Member>;
template <auto Member>
constexpr FieldAccess MenuTitle = At<&D::MenuTitles, Member>;

constexpr FieldSpec CaptionFields[] = {
    Field("Izlaz", Look<&L::Izlaz>).New("").Text(TextForm::ExitCaption).Decoded(),
    Field("Exitdesctitle", Look<&L::Exitdesctitle>).New("").Object().Encoded(),
    Field("Exitdescription", Look<&L::Exitdescription>).New("").Object().Encoded(),
    Field("Sounddesctitle", Look<&L::Sounddesctitle>).New("").Object().Encoded(),
    Field("Sounddescription", Look<&L::Sounddescription>).New("").Object().Encoded(),
};

constexpr FieldSpec FixedFields[] = {
    Field("Fajl", Fixed<&F::Fajl>).New(""),
    Field("Opis", Fixed<&F::Opis>).New("").Encoded(),
    Field("Parametar", Fixed<&F::Parametar>).New(""),
    Field("Vrsta", Fixed<&F::Vrsta>).New(""),
    Field("Zatvara", Fixed<&F::Zatvara>).New("0"),
};

constexpr FieldSpec LookFields[] = {
    Field("Boja slova", Look<&L::Bojaslova>).New("-2147483630").EmptyKeeps(),
    // Two blanks in the key: a line that old runtimes looked for; nobody reads it.
    Field("Boja pozadine  komandi", Look<&L::Bojapozadinekomandi>)
        .WriteOnly("Boja pozadine komandi"),
    Field("Boja pozadine", Look<&L::Bojapozadine>).New("16777215"),
    Field("Boja pozadine komandi", Look<&L::Bojapozadinekomandi>).EmptyKeeps(),
    Field("Font", Look<&L::Font>).New("Arial").EmptyKeeps(),
    Field("Velicina", Look<&L::Velicina>).New("9").EmptyKeeps().Size().RoundedOnRead(),
    Field("Add shadow", Look<&L::Addshadow>).Flag(FlagForm::OneZero),
    Field("Boja senke", Look<&L::Bojasenke>)
        .EmptyGives("14284027")
        .When(Look<&L::Addshadow>, true, "Boja senke=14284027"),
};

constexpr FieldSpec DescriptionFields[] = {
    Field("C", Description<&CommandDescription::C>).New("").Encoded(),
    Field("O", Description<&CommandDescription::O>).New("").Encoded(),
};

constexpr FieldSpec AdditionalFields[] = {
    Field("addname", Additional<&C::addname>).New("").Text(TextForm::CommandTitle).Decoded(),
    Field("adddesctitle", Additional<&C::adddesctitle>).New("").Encoded(),
    Field("adddescription", Additional<&C::adddescription>).New("").Encoded(),
    Field("addtarget", Additional<&C::addtarget>).New(""),
    Field("addparam", Additional<&C::addparam>).New(""),
    Field("addtype", Additional<&C::addtype>).New(""),
    Field("addclose", Additional<&C::addclose>).New(""),
    Field("addStopBackgroundMusic", Additional<&C::addStopBackgroundMusic>).New(""),
    Field("AddID", Additional<&C::AddID>).Stands(Place::ProjectOnly),
};

constexpr FieldSpec MenuTitleFields[] = {
    Field("TitleMain", MenuTitle<&MenuTitleTexts::TitleMain>)
        .Encoded()
        .EmptyGives("Main")
        .LineWhenEmpty("titleMain=Main"),
    Field("Titleinfo", MenuTitle<&MenuTitleTexts::Titleinfo>)
        .Encoded()
        .EmptyGives("Info")
        .LineWhenEmpty("Titleinfo=Info"),
    Field("Titleprog", MenuTitle<&MenuTitleTexts::Titleprog>)
        .Encoded()
        .EmptyGives("Program")
        .LineWhenEmpty("titleprog=Program"),
    Field("Titleaddit", MenuTitle<&MenuTitleTexts::Titleaddit>)
        .Encoded()
        .EmptyGives("Additional")
        .LineWhenEmpty("Titleaddit=Additional"),
};

constexpr FieldBlock AdditionalTable() {
    FieldBlock block = Table("Dodatne komande", AdditionalFields, KeyForm::Suffix, 0, 100);
    block.resetLast = 99; // the last slot keeps what it holds
    block.writeRows = WriteRows::Commands;
    block.readRows = ReadRows::SkipUntitled;
    return block;
}

constexpr FieldBlock Blocks[] = {
    Single("Izvrsne komande", CaptionFields),
    Table("Izvrsne komande", FixedFields, KeyForm::Suffix, 1, 6),
    Single("Izvrsne komande", LookFields),
    Table("Opis komandi", DescriptionFields, KeyForm::Suffix, 1, 6),
    AdditionalTable(),
    Single("Menu titles", MenuTitleFields),
};

} // namespace

std::span<const FieldBlock> CommandBlocks() {
    return Blocks;
}

} // namespace tavmoor
