#include "menu/menu_model.h"

#include "core/code_page.h"
#include "core/number_text.h"
#include "core/text_case.h"
#include "core/value_encoding.h"

#include <algorithm>
#include <string_view>

namespace tavmoor {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr int LargestPoints = 400;

std::string Text(std::string_view bytes) {
    std::string lines;
    lines.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r') {
            lines += bytes[i];
        } else if (i + 1 == bytes.size() || bytes[i + 1] != '\n') {
            lines += '\n';
        }
    }
    return SystemCodePage().ToUtf8(lines);
}

int Points(std::string_view size) {
    return std::clamp<int>(ParseInteger<std::int16_t>(size).value_or(0), 0, LargestPoints);
}

MenuFont Font(std::string_view face, std::string_view size, bool bold, bool italic,
              bool underline = false) {
    return {Text(TrimBlanks(face)), Points(size), bold, italic, underline, false};
}

MenuText LogoText(const MainTexts& texts, const FixedText& look) {
    MenuText logo{Text(texts.Logotekst),
                  Font(texts.Font, texts.Velicina, texts.Stil == "Bold", texts.Stil == "Italic"),
                  texts.Logotekstboja};
    logo.font.underline = look.TekstUnderline || EndsWithoutCase(texts.Efekti, "line");
    logo.font.strikeOut = texts.Efekti.starts_with("Strike");
    return logo;
}

void TakeTexts(MenuModel& model, const ProjectDocument& document) {
    const MainTexts& texts = document.OsnovniPodaci;
    const auto& looks = document.NapredniSabloni.Tekst;
    model.logo = LogoText(texts, looks[0]);
    model.title = {
        Text(texts.Glavninaslov),
        Font(texts.GlavninaslovFont, texts.GlnaslovVel, false, false, looks[1].TekstUnderline),
        texts.GlnaslovBoja};
    model.descriptionTitle = {Text(texts.GlavniOpisnaslov),
                              Font(texts.GlavniOpisnaslovFont, texts.GlavniOpisnaslovVel,
                                   texts.GlavniOpisnaslovBold, texts.GlavniOpisnaslovItalic,
                                   looks[2].TekstUnderline),
                              texts.GlavniOpisnaslovBoja};
    model.description = {Text(texts.GlavniOpis),
                         Font(texts.GlavniOpisFont, texts.GlavniOpisVel, texts.GlavniOpisBold,
                              texts.GlavniOpisItalic, looks[3].TekstUnderline),
                         texts.GlavniOpisBoja};
    if (!texts.Opisprovidan) {
        model.descriptionColor = document.IzvrsneKomande.Bojapozadine;
    }
    model.windowTitle = Text(texts.Tasknaslov);
    if (TrimBlanks(model.windowTitle).empty()) {
        model.windowTitle = model.title.text;
    }
    std::replace(model.windowTitle.begin(), model.windowTitle.end(), '\n', ' ');
}

void TakeButtonLook(MenuModel& model, const CommandLook& look) {
    model.buttonFont = Font(look.Font, look.Velicina, false, false);
    model.buttonTextColor = ParseInteger<ColorValue>(look.Bojaslova);
    model.buttonFaceColor = ParseInteger<ColorValue>(look.Bojapozadinekomandi);
    if (look.Addshadow) {
        model.buttonShadowColor = ParseInteger<ColorValue>(look.Bojasenke);
    }
}

/// A kind that the windows do not offer opens the target, which is what most commands do.
CommandKind KindOf(std::string_view kind) {
    kind = TrimBlanks(kind);
    if (EqualWithoutCase(kind, "Run program")) {
        return CommandKind::RunProgram;
    }
    if (EqualWithoutCase(kind, "Visit web page")) {
        return CommandKind::VisitPage;
    }
    return EqualWithoutCase(kind, "Send mail") ? CommandKind::SendMail : CommandKind::OpenFile;
}

/// The text forms of "yes": what the windows of several versions have stored.
bool SaysYes(std::string_view text) {
    text = TrimBlanks(text);
    const auto number = ParseNumber(text);
    return number ? *number != 0.0
                  : EqualWithoutCase(text, "True") || EqualWithoutCase(text, "Da") ||
                        EqualWithoutCase(text, "Yes");
}

void TakeFixedCommands(MenuModel& model, const ProjectDocument& document) {
    for (std::size_t row = 1; row < FixedCommandRows; ++row) {
        const FixedCommand& from = document.IzvrsneKomande.Komande[row];
        const CommandDescription& told = document.OpisKomandi[row];
        if (from.Opis.empty() || from.Vrsta.empty()) {
            continue;
        }
        const CommandKind kind = KindOf(from.Vrsta);
        const bool online = kind == CommandKind::VisitPage || kind == CommandKind::SendMail;
        model.commands.push_back({kind,
                                  online ? MenuGroup::Info : MenuGroup::Main,
                                  Text(from.Opis),
                                  Text(from.Fajl),
                                  Text(from.Parametar),
                                  {Text(told.C), Text(told.O)},
                                  from.Zatvara != 0});
    }
}

void TakeAdditionalCommands(MenuModel& model, const ProjectDocument& document) {
    for (const CommandEntry& from : document.DodatneKomande) {
        if (from.addname.empty() || from.addname == " ") {
            continue;
        }
        model.commands.push_back({KindOf(from.addtype),
                                  MenuGroup::Additional,
                                  Text(from.addname),
                                  Text(from.addtarget),
                                  Text(from.addparam),
                                  {Text(from.adddesctitle), Text(from.adddescription)},
                                  SaysYes(from.addclose)});
    }
}

void TakeExit(MenuModel& model, const CommandLook& look) {
    MenuCommand exit;
    exit.kind = CommandKind::Exit;
    exit.group = MenuGroup::Program;
    exit.caption = look.Izlaz.empty() ? "Exit" : Text(look.Izlaz);
    exit.description = {Text(look.Exitdesctitle), Text(look.Exitdescription)};
    model.commands.push_back(std::move(exit));
}

void TakeSize(MenuModel& model, const BaseSettings& base) {
    if (base.PodesiVelicinu) {
        model.windowSize = {std::max<int>(base.PodesiSirinu, 0),
                            std::max<int>(base.PodesiVisinu, 0)};
    }
}

/// What only the canvas sets, in place of the settings that it hides.
void TakeCanvas(MenuModel& model, const CanvasSpec& canvas) {
    if (canvas.AutorunWidth > 0 || canvas.AutorunHeight > 0) {
        model.windowSize = {std::max<int>(canvas.AutorunWidth, 0) / TwipsPerPixel,
                            std::max<int>(canvas.AutorunHeight, 0) / TwipsPerPixel};
    }
    model.maximized = canvas.WindowMaximized;
    const FixedText& description = canvas.Tekst[3];
    model.descriptionColor.reset();
    if (description.TekstBackgroundStyle != 0) {
        model.descriptionColor = ParseInteger<ColorValue>(description.TekstBackgroundColor);
    }
}

} // namespace

Description MenuModel::DescriptionOf(std::optional<std::size_t> command) const {
    if (command && *command < commands.size() && !commands[*command].description.Empty()) {
        return commands[*command].description;
    }
    return {descriptionTitle.text, description.text};
}

bool MenuModel::HasDescriptions() const {
    return !DescriptionOf(std::nullopt).Empty() ||
           std::any_of(commands.begin(), commands.end(),
                       [](const MenuCommand& command) { return !command.description.Empty(); });
}

MenuModel MakeMenuModel(const ProjectDocument& document, DesignedIn place) {
    MenuModel model;
    TakeSize(model, document.OsnovnaPodesavanja);
    model.windowColor = document.OsnovnaPodesavanja.BojaProzora;
    model.backgroundPicture = document.OsnovnaPodesavanja.PozadinskaSlika;
    model.logoPicture = document.OsnovniPodaci.Logoslika;
    model.hasIcon = !document.OsnovniPodaci.Ikona.empty();
    TakeTexts(model, document);
    TakeButtonLook(model, document.IzvrsneKomande);
    const MenuTitleTexts& titles = document.MenuTitles;
    model.groupTitles = {Text(titles.TitleMain), Text(titles.Titleinfo), Text(titles.Titleaddit),
                         Text(titles.Titleprog)};
    TakeFixedCommands(model, document);
    TakeAdditionalCommands(model, document);
    TakeExit(model, document.IzvrsneKomande);
    if (place == DesignedIn::Canvas) {
        TakeCanvas(model, document.NapredniSabloni);
    }
    return model;
}

void GatherGroups(MenuModel& model) {
    std::stable_sort(model.commands.begin(), model.commands.end(),
                     [](const MenuCommand& a, const MenuCommand& b) { return a.group < b.group; });
}

} // namespace tavmoor
