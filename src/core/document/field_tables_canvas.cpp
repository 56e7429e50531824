#include "core/document/field_tables.h"

namespace tavmoor {

namespace {

using D = ProjectDocument;
using N = CanvasSpec;
using U = ButtonObject;
using X = TextObject;
using V = VideoObject;
using R = PictureRatios;

template <auto Member>
constexpr FieldAccess Canvas = At<&D::NapredniSabloni, Member>;
template <auto Member>
constexpr FieldAccess Fixed = At<&D::NapredniSabloni, &N::Tekst, Member>;
template <auto Member>
constexpr FieldAccess Button = At<&D::NapredniSabloni, &N::Dugme, Member>;
template <auto Member>
constexpr FieldAccess Text = At<&D::ObjTekst, Member>;
template <auto Member>
constexpr FieldAccess Film = At<&D::Video, Member>;
template <auto Member>
constexpr FieldAccess Ratio = At<&D::Ratios, Member>;

constexpr FieldSpec Position(std::string_view key, FieldAccess access) {
    return Field(key, access).EmptyGives("0");
}

constexpr FieldSpec CanvasFields[] = {
    Position("AutorunWidth", Canvas<&N::AutorunWidth>).New("0").Object(),
    Position("AutorunHeight", Canvas<&N::AutorunHeight>).New("0").Object(),
    Field("AutorunFixedSize", Canvas<&N::AutorunFixedSize>).New("False").Object(),
    Position("LogoTekstTop", Canvas<&N::LogoTekstTop>).New("0").Object(),
    Position("LogoTekstLeft", Canvas<&N::LogoTekstLeft>).New("0").Object(),
    Position("MainAutorunTekstTop", Canvas<&N::MainAutorunTekstTop>),
    Position("MainAutorunTekstLeft", Canvas<&N::MainAutorunTekstLeft>),
    Position("SlikaLogoX", Canvas<&N::SlikaLogoX>),
    Position("SlikaLogoY", Canvas<&N::SlikaLogoY>),
    Position("GlavniOpisNaslovX", Canvas<&N::GlavniOpisNaslovX>),
    Position("GlavniOpisNaslovY", Canvas<&N::GlavniOpisNaslovY>),
    Position("GlavniOpisNaslovWidth", Canvas<&N::GlavniOpisNaslovWidth>),
    Position("GlavniOpisX", Canvas<&N::GlavniOpisX>),
    Position("GlavniOpisY", Canvas<&N::GlavniOpisY>),
    Position("GlavniOpisWidth", Canvas<&N::GlavniOpisWidth>),
    Position("GlavniOpisHeight", Canvas<&N::GlavniOpisHeight>),
};

constexpr FieldSpec FixedTextFields[] = {
    Field("TekstUnderline", Fixed<&FixedText::TekstUnderline>).New("False").Object(),
    Field("TekstBackgroundStyle", Fixed<&FixedText::TekstBackgroundStyle>)
        .New("0")
        .Object()
        .Number(NumberRule::OneElseZero),
    Field("TekstBackgroundColor", Fixed<&FixedText::TekstBackgroundColor>)
        .New("")
        .Object()
        .EmptyGives("0"),
    Field("Poravnanje", Fixed<&FixedText::Poravnanje>).New("0").EmptyGives("0"),
};

constexpr FieldSpec ButtonNumber(std::string_view key, FieldAccess access) {
    return Field(key, access).New("0").Object().EmptyGives("0");
}

constexpr FieldSpec ButtonText(std::string_view key, FieldAccess access) {
    return Field(key, access).New("").Object();
}

constexpr FieldSpec ButtonFlag(std::string_view key, FieldAccess access) {
    return Field(key, access).New("False").Object();
}

constexpr FieldSpec ButtonFields[] = {
    ButtonNumber("DugmeX", Button<&U::DugmeX>),
    ButtonNumber("DugmeY", Button<&U::DugmeY>),
    ButtonText("DugmeForeBoja", Button<&U::DugmeForeBoja>),
    ButtonText("DugmeBackBoja", Button<&U::DugmeBackBoja>),
    ButtonText("DugmeBorderBoja", Button<&U::DugmeBorderBoja>),
    ButtonText("DugmeFontName", Button<&U::DugmeFontName>),
    ButtonNumber("DugmeFontSize", Button<&U::DugmeFontSize>),
    ButtonFlag("DugmeItalic", Button<&U::DugmeItalic>),
    ButtonFlag("DugmeBold", Button<&U::DugmeBold>),
    Field("DugmeBorderVisible", Button<&U::DugmeBorderVisible>)
        .New("True")
        .Object()
        .Flag(FlagForm::TrueFalse, FlagTest::UnlessFalse),
    ButtonFlag("DugmeResizeManual", Button<&U::DugmeResizeManual>),
    ButtonNumber("DugmeWidth", Button<&U::DugmeWidth>),
    ButtonNumber("DugmeID", Button<&U::DugmeID>),
    ButtonText("DugmePictureFile", Button<&U::DugmePictureFile>)
        .ProgramFolder()
        .InPackage(11)
        .Then(ReadStep::ButtonPicture),
    ButtonNumber("DugmeStretchToPicture", Button<&U::DugmeStretchToPicture>),
};

constexpr FieldSpec WindowFields[] = {
    Field("WindowMaximized", Canvas<&N::WindowMaximized>),
};

constexpr FieldSpec TextField(std::string_view key, FieldAccess access, std::string_view value) {
    return Field(key, access).New(value).Object().EmptyKeeps();
}

constexpr FieldSpec TextFields[] = {
    TextField("TekstBoxX", Text<&X::TekstBoxX>, "0"),
    TextField("TekstBoxY", Text<&X::TekstBoxY>, "0"),
    TextField("TekstBoxCaption", Text<&X::TekstBoxCaption>, "").Encoded(),
    TextField("TekstBoxVisible", Text<&X::TekstBoxVisible>, "False"),
    TextField("TekstBoxW", Text<&X::TekstBoxW>, "0"),
    TextField("TekstBoxH", Text<&X::TekstBoxH>, "0"),
    TextField("TekstBoxFontName", Text<&X::TekstBoxFontName>, ""),
    TextField("TekstBoxFontSize", Text<&X::TekstBoxFontSize>, "0"),
    TextField("TekstBoxFontB", Text<&X::TekstBoxFontB>, "False"),
    TextField("TekstBoxFontU", Text<&X::TekstBoxFontU>, "False"),
    TextField("TekstBoxFontI", Text<&X::TekstBoxFontI>, "False"),
    TextField("TekstBoxTransparent", Text<&X::TekstBoxTransparent>, "False")
        .ConfigurationFlag(FlagForm::MinusOneZero),
    TextField("tekstBoxForeColor", Text<&X::tekstBoxForeColor>, ""),
    TextField("tekstBoxBackColor", Text<&X::tekstBoxBackColor>, ""),
    TextField("tekstBoxAlign", Text<&X::tekstBoxAlign>, ""),
};

constexpr FieldSpec RatioField(std::string_view key, FieldAccess access) {
    return Field(key, access).Stands(Place::ConfigurationOnly);
}

constexpr FieldSpec RatioFields[] = {
    RatioField("backpicOdnosx", Ratio<&R::BackPictureRatioX>),
    RatioField("backpicOdnosy", Ratio<&R::BackPictureRatioY>),
    RatioField("LogopicOdnosx", Ratio<&R::LogoPictureRatioX>),
    RatioField("LogopicOdnosy", Ratio<&R::LogoPictureRatioY>),
};

constexpr FieldSpec VideoFields[] = {
    Field("VideoFajl", Film<&V::VideoFajl>).New("").ProgramFolder().InPackage(10),
    Field("videoAutoplay", Film<&V::videoAutoplay>).New("False"),
    Field("videoLeft", Film<&V::videoLeft>).New("0").EmptyGives("300"),
    Field("videoTop", Film<&V::videoTop>).New("0").EmptyGives("200"),
    Field("Volume", Film<&V::Volume>).New("0").EmptyGives("20"),
    Field("videorepeat", Film<&V::videorepeat>).New("False"),
};

constexpr FieldBlock ButtonTable() {
    FieldBlock block =
        Table("Napredni sabloni", ButtonFields, KeyForm::Parentheses, 0, ButtonRows - 1);
    block.packageLast = ButtonRows - 2; // the canvas itself never fills the last slot
    block.writeRows = WriteRows::LiveButtons;
    return block;
}

constexpr FieldBlock TextTable() {
    FieldBlock block = Table("ObjTekst", TextFields, KeyForm::Parentheses, 0, TextRows - 2);
    block.resetLast = TextRows - 1; // the slot behind the stored ones is cleared, too
    block.writeRows = WriteRows::VisibleTexts;
    return block;
}

constexpr FieldBlock VideoTable() {
    FieldBlock block = Table("Video", VideoFields, KeyForm::Suffix, 1, VideoRows - 1);
    block.resetFirst = 0;
    block.writeRows = WriteRows::UntilFirstEmpty;
    block.readRows = ReadRows::UntilFirstEmpty;
    return block;
}

constexpr FieldBlock Blocks[] = {
    Single("Napredni sabloni", CanvasFields),
    Table("Napredni sabloni", FixedTextFields, KeyForm::Parentheses, 0, FixedTextRows - 1),
    ButtonTable(),
    Single("Napredni sabloni", WindowFields),
    TextTable(),
    Single("ObjTekst", RatioFields),
    VideoTable(),
};

} // namespace

std::span<const FieldBlock> CanvasBlocks() {
    return Blocks;
}

} // namespace tavmoor
