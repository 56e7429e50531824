#include "core/document/field_tables.h"

namespace tavmoor {

namespace {

using D = ProjectDocument;
using B = BaseSettings;
using T = MainTexts;

template <auto Member>
constexpr FieldAccess Base = At<&D::OsnovnaPodesavanja, Member>;
template <auto Member>
constexpr FieldAccess Main = At<&D::OsnovniPodaci, Member>;

constexpr FieldSpec BaseFields[] = {
    Field("Glavni direktorijum", Base<&B::GlavniDirektorijum>).New("").Stands(Place::ProjectOnly),
    Field("Sablon", Base<&B::Sablon>)
        .New("")
        .ProgramFolder()
        .Stands(Place::ProjectOnly)
        .Then(ReadStep::Template),
    Field("Pozadinska slika", Base<&B::PozadinskaSlika>).New("").ProgramFolder().InPackage(2),
    Field("Boja prozora", Base<&B::BojaProzora>).New("-2147483643"),
    Field("PodesiVelicinu", Base<&B::PodesiVelicinu>)
        .Flag(FlagForm::DaNe)
        .LineWhenEmpty("Podesi velicinu=Ne"),
    Field("PodesiSirinu", Base<&B::PodesiSirinu>)
        .When(Base<&B::PodesiVelicinu>, true, "PodesiSirinu=0"),
    Field("PodesiVisinu", Base<&B::PodesiVisinu>)
        .When(Base<&B::PodesiVelicinu>, true, "PodesiVisinu=0"),
    Field("CeoEkran", Base<&B::CeoEkran>).Flag(FlagForm::DaNe),
    Field("BojaEkrana", Base<&B::BojaEkrana>).EmptyKeeps(),
    Field("backscreenslika", Base<&B::backscreenslika>).EmptyKeeps().InPackage(9),
    Field("Backscrpredpos", Base<&B::Backscrpredpos>).Flag(FlagForm::DaNe),
    Field("backscreenpicpozicija", Base<&B::backscreenpicpozicija>)
        .EmptyGives(words::TopLeft)
        .When(Base<&B::Backscrpredpos>, true, "backscreenpicpozicija=Ne"),
    Field("PozicijaX", Base<&B::PozicijaX>)
        .EmptyGives("0")
        .When(Base<&B::Backscrpredpos>, false, "PozicijaX=0"),
    Field("PozicijaY", Base<&B::PozicijaY>)
        .EmptyGives("0")
        .When(Base<&B::Backscrpredpos>, false, "PozicijaY=0"),
};

constexpr FieldSpec MainFields[] = {
    Field("exename", Main<&T::exename>).New("").Stands(Place::ProjectOnly),
    Field("Tasknaslov", Main<&T::Tasknaslov>).New("").Encoded(),
    Field("Logotekst", Main<&T::Logotekst>).New("").Encoded(),
    Field("Logotekstboja", Main<&T::Logotekstboja>).New("0"),
    Field("Logoslika", Main<&T::Logoslika>).New("").ProgramFolder().InPackage(3),
    Field("Glavninaslov", Main<&T::Glavninaslov>).New("").Encoded(),
    Field("GlavninaslovFont", Main<&T::GlavninaslovFont>).New("").EmptyKeeps(),
    Field("GlnaslovVel", Main<&T::GlnaslovVel>).New("").EmptyKeeps().Size(),
    Field("GlnaslovBoja", Main<&T::GlnaslovBoja>).New("0"),
    Field("GlavniOpisnaslov", Main<&T::GlavniOpisnaslov>).New("").Encoded(),
    Field("GlavniOpisnaslovFont", Main<&T::GlavniOpisnaslovFont>).New("").EmptyKeeps(),
    Field("GlavniOpisnaslovVel", Main<&T::GlavniOpisnaslovVel>).New("").EmptyKeeps().Size(),
    Field("GlavniOpisnaslovBoja", Main<&T::GlavniOpisnaslovBoja>).New("0"),
    Field("GlavniOpisnaslovBold", Main<&T::GlavniOpisnaslovBold>).New("False"),
    Field("GlavniOpisnaslovItalic", Main<&T::GlavniOpisnaslovItalic>).New("False"),
    Field("GlavniOpis", Main<&T::GlavniOpis>).New("").Encoded(),
    Field("GlavniOpisFont", Main<&T::GlavniOpisFont>).New("").EmptyKeeps(),
    Field("GlavniOpisVel", Main<&T::GlavniOpisVel>).New("").EmptyKeeps().Size(),
    Field("GlavniOpisBoja", Main<&T::GlavniOpisBoja>).New("0"),
    Field("GlavniOpisBold", Main<&T::GlavniOpisBold>).New("False"),
    Field("GlavniOpisItalic", Main<&T::GlavniOpisItalic>).New("False"),
    Field("Opis providan", Main<&T::Opisprovidan>)
        .New("0")
        .Flag(FlagForm::OneZero)
        .Stands(Place::ConfigurationAtSectionEnd),
    Field("Ikona", Main<&T::Ikona>).New("").InPackage(4),
    Field("Font", Main<&T::Font>).New(""),
    Field("Velicina", Main<&T::Velicina>).New("").Size(),
    Field("Stil", Main<&T::Stil>).New(""),
    Field("Efekti", Main<&T::Efekti>).New(""),
    Field("Vertekst", Main<&T::Vertekst>).New("").Text(TextForm::EncodedInConfiguration).Decoded(),
    Field("Vertfont", Main<&T::Vertfont>).New(""),
    Field("Vertfontvelicina", Main<&T::Vertfontvelicina>).New("").Size(),
    Field("Vertfontboja", Main<&T::Vertfontboja>).New("0").Stands(Place::ConfigurationOnly),
};

constexpr FieldBlock Blocks[] = {
    Single("Osnovna podesavanja", BaseFields),
    Single("Osnovni podaci", MainFields),
};

} // namespace

std::span<const FieldBlock> TitleBlocks() {
    return Blocks;
}

} // namespace tavmoor
