#include "menu/menu_model.h"

#include "core/text/blanks.h"
#include "core/text/number_text.h"
#include "core/text/text_case.h"
#include "menu/stored_values.h"

#include <algorithm>
#include <string_view>

namespace tavmoor {

namespace {

MenuText LogoText(const MainTexts& texts, const FixedText& look) {
    MenuText logo{Utf8Text(texts.Logotekst),
                  StoredFont(texts.Font, texts.Velicina, texts.Stil == words::Bold,
                             texts.Stil == words::Italic),
                  texts.Logotekstboja};
    logo.font.underline = look.TekstUnderline || EndsWithoutCase(texts.Efekti, words::UnderlineEnd);
    logo.font.strikeOut = texts.Efekti.starts_with(words::StrikeThruStart);
    return logo;
}

void TakeTexts(MenuModel& model, const ProjectDocument& document) {
    const MainTexts& texts = document.OsnovniPodaci;
    const auto& looks = document.NapredniSabloni.Tekst;
    model.logo = LogoText(texts, looks[0]);
    model.title = {Utf8Text(texts.Glavninaslov),
                   StoredFont(texts.GlavninaslovFont, texts.GlnaslovVel, false, false,
                              looks[1].TekstUnderline),
                   texts.GlnaslovBoja};
    model.descriptionTitle = {Utf8Text(texts.GlavniOpisnaslov),
                              StoredFont(texts.GlavniOpisnaslovFont, texts.GlavniOpisnaslovVel,
                                         texts.GlavniOpisnaslovBold, texts.GlavniOpisnaslovItalic,
                                         looks[2].TekstUnderline),
                              texts.GlavniOpisnaslovBoja};
    model.description = {Utf8Text(texts.GlavniOpis),
                         StoredFont(texts.GlavniOpisFont, texts.GlavniOpisVel, texts.GlavniOpisBold,
                                    texts.GlavniOpisItalic, looks[3].TekstUnderline),
                         texts.GlavniOpisBoja};
    if (!texts.Opisprovidan) {
        model.descriptionColor = document.IzvrsneKomande.Bojapozadine;
    }
    model.windowTitle = WindowTitle(document);
}

void TakeButtonLook(MenuModel& model, const CommandLook& look) {
    model.buttonFont = StoredFont(look.Font, look.Velicina, false, false);
    model.buttonTextColor = ParseInteger<ColorValue>(look.Bojaslova);
    model.buttonFaceColor = ParseInteger<ColorValue>(look.Bojapozadinekomandi);
    if (look.Addshadow) {
        model.buttonShadowColor = ParseInteger<ColorValue>(look.Bojasenke);
    }
}

/// A kind that the windows do not offer opens the target, which is what most commands do.
CommandKind KindOf(std::string_view kind) {
    kind = TrimBlanks(kind);
    if (EqualWithoutCase(kind, words::RunProgram)) {
        return CommandKind::RunProgram;
    }
    if (EqualWithoutCase(kind, words::VisitWebPage)) {
        return CommandKind::VisitPage;
    }
    return EqualWithoutCase(kind, words::SendMail) ? CommandKind::SendMail : CommandKind::OpenFile;
}

void TakeFixedCommands(MenuModel& model, const ProjectDocument& document) {
    for (std::size_t row = 1; row < FixedCommandRows; ++row) {
        const FixedCommand& from = document.IzvrsneKomande.Komande[row];
        const CommandDescription& told = document.OpisKomandi[row];
        if (from.IsFree()) {
            continue;
        }
        const CommandKind kind = KindOf(from.Vrsta);
        const bool online = kind == CommandKind::VisitPage || kind == CommandKind::SendMail;
        model.commands.push_back({kind,
                                  online ? MenuGroup::Info : MenuGroup::Main,
                                  Utf8Text(from.Opis),
                                  Utf8Text(from.Fajl),
                                  Utf8Text(from.Parametar),
                                  {Utf8Text(told.C), Utf8Text(told.O)},
                                  from.Zatvara != 0});
    }
}

void TakeAdditionalCommands(MenuModel& model, const ProjectDocument& document) {
    for (const CommandEntry& from : document.DodatneKomande) {
        if (from.IsFree()) {
            continue;
        }
        model.commands.push_back({KindOf(from.addtype),
                                  MenuGroup::Additional,
                                  Utf8Text(from.addname),
                                  Utf8Text(from.addtarget),
                                  Utf8Text(from.addparam),
                                  {Utf8Text(from.adddesctitle), Utf8Text(from.adddescription)},
                                  SaysYes(from.addclose),
                                  SaysYes(from.addStopBackgroundMusic)});
    }
}

void TakeSound(MenuModel& model, const ProjectDocument& document) {
    const SoundSpec& sound = document.Zvuk;
    if (sound.Fajl.empty()) {
        return;
    }
    const CommandLook& look = document.IzvrsneKomande;
    MenuCommand command;
    command.kind = CommandKind::Sound;
    command.group = MenuGroup::Program;
    command.caption = sound.Komanda.empty() ? "Sound on/off" : Utf8Text(sound.Komanda);
    command.description = {Utf8Text(look.Sounddesctitle), Utf8Text(look.Sounddescription)};
    model.commands.push_back(std::move(command));
}

void TakeExit(MenuModel& model, const CommandLook& look) {
    MenuCommand exit;
    exit.kind = CommandKind::Exit;
    exit.group = MenuGroup::Program;
    exit.caption = look.Izlaz.empty() ? std::string(words::ExitCaption) : Utf8Text(look.Izlaz);
    exit.description = {Utf8Text(look.Exitdesctitle), Utf8Text(look.Exitdescription)};
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

std::string WindowTitle(const ProjectDocument& document) {
    const MainTexts& texts = document.OsnovniPodaci;
    const bool blank = TrimBlanks(texts.Tasknaslov).empty();
    std::string title = Utf8Text(blank ? texts.Glavninaslov : texts.Tasknaslov);
    std::replace(title.begin(), title.end(), '\n', ' ');
    return title;
}

MenuModel MakeMenuModel(const ProjectDocument& document, DesignedIn place) {
    MenuModel model;
    TakeSize(model, document.OsnovnaPodesavanja);
    model.windowColor = document.OsnovnaPodesavanja.BojaProzora;
    model.backgroundPicture = document.OsnovnaPodesavanja.PozadinskaSlika;
    model.logoPicture = document.OsnovniPodaci.Logoslika;
    TakeTexts(model, document);
    TakeButtonLook(model, document.IzvrsneKomande);
    const MenuTitleTexts& titles = document.MenuTitles;
    model.groupTitles = {Utf8Text(titles.TitleMain), Utf8Text(titles.Titleinfo),
                         Utf8Text(titles.Titleaddit), Utf8Text(titles.Titleprog)};
    TakeFixedCommands(model, document);
    TakeAdditionalCommands(model, document);
    TakeSound(model, document);
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
