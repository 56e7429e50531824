#include "core/document/field_tables.h"

namespace tavmoor {

namespace {

using D = ProjectDocument;
using S = ScreenSpec;
using E = EffectSet;

template <auto Member>
constexpr FieldAccess Sound = At<&D::Zvuk, Member>;
template <auto Member>
constexpr FieldAccess Splash = At<&D::Uvod, Member>;
template <auto Member>
constexpr FieldAccess Exit = At<&D::Izlaz, Member>;
template <auto Member>
constexpr FieldAccess Effect = At<&D::Efekti, Member>;

constexpr FieldSpec SoundFields[] = {
    Field("Fajl", Sound<&SoundSpec::Fajl>).New("").ProgramFolder().InPackage(5),
    Field("Akcija", Sound<&SoundSpec::Akcija>)
        .New("0")
        .Flag(FlagForm::OneZero, FlagTest::UnlessZero),
    Field("Ponovi", Sound<&SoundSpec::Ponovi>).New("1"),
    Field("Pauza", Sound<&SoundSpec::Pauza>).New("1").Number(NumberRule::AboveZero),
    Field("Komanda", Sound<&SoundSpec::Komanda>).New("Sound on/off").Encoded(),
    Field("Signal", Sound<&SoundSpec::Signal>).New("0").Flag(FlagForm::OneZero),
    Field("SignalFajl", Sound<&SoundSpec::SignalFajl>)
        .New("")
        .InPackage(6)
        .When(Sound<&SoundSpec::Signal>, true, ""),
};

constexpr FieldSpec ScreenFlag(std::string_view key, FieldAccess access) {
    return Field(key, access).New("0").Flag(FlagForm::OneZero);
}

constexpr FieldSpec ClickThrough(std::string_view key, FieldAccess access) {
    return Field(key, access).Flag(FlagForm::OneZero, FlagTest::NumberIsOne);
}

constexpr FieldSpec Option(FieldAccess access) {
    return Field("Opcija", access).New("1").Number(NumberRule::ScreenOption).LineOnlyWhenSet();
}

constexpr FieldSpec SplashFields[] = {
    ScreenFlag("Prikazi", Splash<&S::Prikazi>),
    ClickThrough("ClickThrough", Splash<&S::ClickThrough>),
    Field("Poruka", Splash<&S::Tekst>).New("").Encoded(),
    Field("Font", Splash<&S::Font>).New(""),
    Field("Fontvelicina", Splash<&S::Fontvelicina>).New("").Size(),
    ScreenFlag("Bold", Splash<&S::Bold>),
    ScreenFlag("Italic", Splash<&S::Italic>),
    ScreenFlag("Underline", Splash<&S::Underline>),
    Field("Bojateksta", Splash<&S::Bojateksta>),
    Field("Slika", Splash<&S::Slika>).New("").InPackage(7),
    Option(Splash<&S::Opcija>),
    Field("Bojaprozora", Splash<&S::Bojaprozora>).New("8421504"),
    Field("Vreme", Splash<&S::Vreme>).New(UsualScreenSecondsText),
    Field("Visina", Splash<&S::Visina>).New("0"),
    Field("Sirina", Splash<&S::Sirina>).New("0"),
    Field("Polozajteksta", Splash<&S::Polozajteksta>).New(""),
    Field("Polozajslike", Splash<&S::Polozajslike>).New(""),
};

// The order differs from the splash screen's: the text colour stands before the style.
constexpr FieldSpec ExitFields[] = {
    ScreenFlag("Prikazi", Exit<&S::Prikazi>),
    ClickThrough("ClickThroughExit", Exit<&S::ClickThrough>),
    Field("Tekst", Exit<&S::Tekst>).New("").Encoded(),
    Field("Font", Exit<&S::Font>).New(""),
    Field("Fontvelicina", Exit<&S::Fontvelicina>).New("").Size(),
    Field("Bojateksta", Exit<&S::Bojateksta>),
    ScreenFlag("Bold", Exit<&S::Bold>),
    ScreenFlag("Italic", Exit<&S::Italic>),
    ScreenFlag("Underline", Exit<&S::Underline>),
    Field("Slika", Exit<&S::Slika>).New("").InPackage(8),
    Option(Exit<&S::Opcija>),
    Field("Bojaprozora", Exit<&S::Bojaprozora>).New("-2147483630"),
    Field("Vreme", Exit<&S::Vreme>).New(UsualScreenSecondsText),
    Field("Visina", Exit<&S::Visina>).New("0"),
    Field("Sirina", Exit<&S::Sirina>).New("0"),
    Field("Polozajteksta", Exit<&S::Polozajteksta>).New(""),
    Field("Polozajslike", Exit<&S::Polozajslike>).New(""),
};

constexpr FieldSpec FontFields[] = {
    Field("Font", At<&D::Fontovi>).InPackage(FontPackageOrder).Then(ReadStep::Font),
};

constexpr FieldSpec EffectNumber(std::string_view key, FieldAccess access) {
    return Field(key, access).New("0").Number(NumberRule::AboveZero);
}

constexpr FieldSpec EffectFields[] = {
    Field("Splash fade in", Effect<&E::Splashfadein>).New("False"),
    Field("Splash fade out", Effect<&E::Splashfadeout>).New("False"),
    Field("Main fade in", Effect<&E::Mainfadein>).New("False"),
    Field("Main fade out", Effect<&E::Mainfadeout>).New("False"),
    Field("Exit fade in", Effect<&E::Exitfadein>).New("False"),
    Field("Exit fade out", Effect<&E::Exitfadeout>).New("False"),
    EffectNumber("esplashenter", Effect<&E::esplashenter>),
    EffectNumber("emainenter", Effect<&E::emainenter>),
    EffectNumber("eexitenter", Effect<&E::eexitenter>),
    EffectNumber("esplashleave", Effect<&E::esplashleave>),
    EffectNumber("emainleave", Effect<&E::emainleave>),
    EffectNumber("eexitleave", Effect<&E::eexitleave>),
};

constexpr FieldBlock FontTable() {
    FieldBlock block = Table("Fontovi", FontFields, KeyForm::Suffix, 0, FontRows - 1);
    block.writeRows = WriteRows::UntilFirstEmpty;
    block.readRows = ReadRows::FirstAnyway;
    block.inConfiguration = false; // the font files themselves travel in the package
    return block;
}

constexpr FieldBlock Blocks[] = {
    Single("Zvuk", SoundFields),    Single("Uvod", SplashFields),
    Single("Izlaz", ExitFields),    FontTable(),
    Single("Efekti", EffectFields),
};

} // namespace

std::span<const FieldBlock> ScreenBlocks() {
    return Blocks;
}

} // namespace tavmoor
