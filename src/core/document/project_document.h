#pragma once

#include "core/document/measures.h"
#include "core/document/words.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tavmoor {

// The one project in memory. Each section of the project file is a member named like the section,
// each field a member named like its key, blanks removed. What a field is (key, form, encoding,
// new-project value, place in the files) is declared in field_tables_*.cpp.
//
// Texts are bytes in the system's code page. Member initialisers give the value at program start,
// which the fields that "new project" does not touch keep until a window or a file changes them.

inline constexpr std::size_t FixedCommandRows = 7;        ///< used 1 to 6
inline constexpr std::size_t AdditionalCommandRows = 101; ///< 0 to 100
inline constexpr std::size_t FontRows = 21;               ///< 0 to 20
inline constexpr std::size_t ShortcutRows = 51;           ///< 0 to 50
inline constexpr std::size_t FixedTextRows = 4; ///< logo text, main title, description title, text
inline constexpr std::size_t ButtonRows = 101;  ///< 0 to 100
inline constexpr std::size_t TextRows = 101;    ///< 0 to 100, of which the files hold 0 to 99
inline constexpr std::size_t VideoRows = 26;    ///< used 1 to 25

struct BaseSettings {
    std::string GlavniDirektorijum; ///< `CdFolder`, the folder with the disc's content
    std::string Sablon;             ///< the template's descriptor
    std::string PozadinskaSlika;
    ColorValue BojaProzora = 0;
    bool PodesiVelicinu = false;
    std::int16_t PodesiSirinu = 0; ///< pixels
    std::int16_t PodesiVisinu = 0; ///< pixels
    bool CeoEkran = false;
    std::string BojaEkrana;
    std::string backscreenslika;
    bool Backscrpredpos = false;
    std::string backscreenpicpozicija;
    std::int16_t PozicijaX = 0;
    std::int16_t PozicijaY = 0;
};

struct MainTexts {
    std::string exename;
    std::string Tasknaslov;
    std::string Logotekst;
    ColorValue Logotekstboja = 0;
    std::string Logoslika;
    std::string Glavninaslov;
    std::string GlavninaslovFont;
    std::string GlnaslovVel;
    ColorValue GlnaslovBoja = 0;
    std::string GlavniOpisnaslov;
    std::string GlavniOpisnaslovFont;
    std::string GlavniOpisnaslovVel;
    ColorValue GlavniOpisnaslovBoja = 0;
    bool GlavniOpisnaslovBold = false;
    bool GlavniOpisnaslovItalic = false;
    std::string GlavniOpis;
    std::string GlavniOpisFont;
    std::string GlavniOpisVel;
    ColorValue GlavniOpisBoja = 0;
    bool GlavniOpisBold = false;
    bool GlavniOpisItalic = false;
    bool Opisprovidan = false;
    std::string Ikona;
    std::string Font;     ///< of the logo text
    std::string Velicina; ///< of the logo text
    std::string Stil;     ///< "", words::Bold or words::Italic
    std::string Efekti;   ///< none, one or both of words::StrikeThru and words::Underline
    std::string Vertekst;
    std::string Vertfont;
    std::string Vertfontvelicina;
    ColorValue Vertfontboja = 0;
};

struct FixedCommand {
    std::string Fajl;
    std::string Opis;
    std::string Parametar;
    std::string Vrsta; ///< one of words::CommandKinds
    std::int16_t Zatvara = 0;

    /// Without a title or a kind it is no command.
    [[nodiscard]] bool IsFree() const { return Opis.empty() || Vrsta.empty(); }
};

struct CommandLook {
    std::string Izlaz; ///< exit caption; words::BlankCaption where it is blank on purpose
    std::string Exitdesctitle;
    std::string Exitdescription;
    std::string Sounddesctitle;
    std::string Sounddescription;
    std::array<FixedCommand, FixedCommandRows> Komande;
    std::string Bojaslova;
    ColorValue Bojapozadine = 0; ///< of the description text
    std::string Bojapozadinekomandi;
    std::string Font;
    std::string Velicina;
    bool Addshadow = false;
    std::string Bojasenke;
};

struct CommandDescription {
    std::string C; ///< description title
    std::string O; ///< detail description
};

struct CommandEntry {
    std::string addname; ///< words::BlankCaption where it is blank on purpose
    std::string adddesctitle;
    std::string adddescription;
    std::string addtarget;
    std::string addparam;
    std::string addtype;
    std::string addclose;
    std::string addStopBackgroundMusic;
    std::int32_t AddID = 0; ///< ties the command to the button with the same `DugmeID`

    /// A slot that no command has taken; a title blank on purpose takes one.
    [[nodiscard]] bool IsFree() const { return addname.empty() || addname == words::FreeSlot; }
};

struct MenuTitleTexts {
    std::string TitleMain;
    std::string Titleinfo;
    std::string Titleprog;
    std::string Titleaddit;
};

struct SoundSpec {
    std::string Fajl;
    bool Akcija = false; ///< true: the sound waits for the user to start it
    std::int16_t Ponovi = 0;
    std::int16_t Pauza = 0; ///< seconds
    std::string Komanda;
    bool Signal = false;
    std::string SignalFajl;
};

/// The splash screen `[Uvod]` and the exit screen `[Izlaz]`. Two keys differ between the sections:
/// `ClickThrough` is `ClickThroughExit` and `Tekst` is `Poruka` in the other one.
struct ScreenSpec {
    bool Prikazi = false;
    bool ClickThrough = false;
    std::string Tekst;
    std::string Font;
    std::string Fontvelicina;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    ColorValue Bojateksta = 0;
    std::string Slika;
    std::int16_t Opcija = 0; ///< 1 picture and text, 2 picture only, 3 text only, 0 none chosen
    ColorValue Bojaprozora = 0;
    std::string Vreme;       ///< seconds
    std::int16_t Visina = 0; ///< pixels
    std::int16_t Sirina = 0; ///< pixels
    std::string Polozajteksta;
    std::string Polozajslike;
};

struct EffectSet {
    bool Splashfadein = false;
    bool Splashfadeout = false;
    bool Mainfadein = false;
    bool Mainfadeout = false;
    bool Exitfadein = false;
    bool Exitfadeout = false;
    std::int16_t esplashenter = 0;
    std::int16_t emainenter = 0;
    std::int16_t eexitenter = 0;
    std::int16_t esplashleave = 0;
    std::int16_t emainleave = 0;
    std::int16_t eexitleave = 0;
};

struct StartMessageSpec {
    std::int16_t Vrsta = 0;
    std::string Naslov;
    std::string Tekst;
    std::string Dugme1;
    std::int16_t Komanda1 = 0; ///< command type index, -1 is none
    std::string Dugme2;
    std::int16_t Komanda2 = 0;
    std::string Meta1;
    std::string Meta2;
    std::string Par1;
    std::string Par2;
};

struct ExpirationSpec {
    bool Enabled = false;
    std::string Godina;
    std::string Mesec;
    std::string Dan;
    std::string Naslov;
    std::string Poruka;
    std::string Vrsta;
    std::string Dugme1Naslov;
    std::string Dugme2Naslov;
    std::string Dugme1Komanda;
    std::string Dugme2Komanda;
    std::string IsticanjeDugme1Meta;
    std::string IsticanjeDugme2Meta;
    std::string IsticanjeDugme1Param;
    std::string IsticanjeDugme2Param;
};

struct ShortcutEntry {
    std::string Ime;
    std::string Lokacija;
    std::string Meta;
    std::string Ekstra;
};

struct ShortcutList {
    bool Enabled = false;
    std::array<ShortcutEntry, ShortcutRows> Precice;
};

struct FixedText {
    bool TekstUnderline = false;
    std::int16_t TekstBackgroundStyle = 0; ///< 1 opaque, 0 transparent
    std::string TekstBackgroundColor;
    std::int16_t Poravnanje = 0;
};

struct ButtonObject {
    std::int16_t DugmeX = 0; ///< twips
    std::int16_t DugmeY = 0; ///< twips
    std::string DugmeForeBoja;
    std::string DugmeBackBoja;
    std::string DugmeBorderBoja;
    std::string DugmeFontName;
    std::int16_t DugmeFontSize = 0; ///< points
    bool DugmeItalic = false;
    bool DugmeBold = false;
    bool DugmeBorderVisible = false;
    bool DugmeResizeManual = false;
    std::int16_t DugmeWidth = 0; ///< twips
    std::int32_t DugmeID = 0;
    std::string DugmePictureFile;
    std::int16_t DugmeStretchToPicture = 0;
    bool DugmeExists = false; ///< a live button; not stored, only live ones are written
};

/// The canvas of the visual editor; sizes and positions in twips.
struct CanvasSpec {
    std::int16_t AutorunWidth = 0;
    std::int16_t AutorunHeight = 0;
    bool AutorunFixedSize = false;
    std::int16_t LogoTekstTop = 0;
    std::int16_t LogoTekstLeft = 0;
    std::int16_t MainAutorunTekstTop = 0;
    std::int16_t MainAutorunTekstLeft = 0;
    std::int16_t SlikaLogoX = 0;
    std::int16_t SlikaLogoY = 0;
    std::int16_t GlavniOpisNaslovX = 0;
    std::int16_t GlavniOpisNaslovY = 0;
    std::int16_t GlavniOpisNaslovWidth = 0;
    std::int16_t GlavniOpisX = 0;
    std::int16_t GlavniOpisY = 0;
    std::int16_t GlavniOpisWidth = 0;
    std::int16_t GlavniOpisHeight = 0;
    std::array<FixedText, FixedTextRows> Tekst;
    std::array<ButtonObject, ButtonRows> Dugme;
    bool WindowMaximized = false;
};

struct TextObject {
    std::int16_t TekstBoxX = 0; ///< twips
    std::int16_t TekstBoxY = 0; ///< twips
    std::string TekstBoxCaption;
    bool TekstBoxVisible = false; ///< a live slot; only live ones are written
    std::int16_t TekstBoxW = 0;   ///< twips
    std::int16_t TekstBoxH = 0;   ///< twips
    std::string TekstBoxFontName;
    std::int16_t TekstBoxFontSize = 0; ///< points
    bool TekstBoxFontB = false;
    bool TekstBoxFontU = false;
    bool TekstBoxFontI = false;
    bool TekstBoxTransparent = false;
    std::string tekstBoxForeColor;
    std::string tekstBoxBackColor;
    std::string tekstBoxAlign;
};

/// The scale factors of the two pictures, decimal texts that the canvas computes; they stand only
/// in the runtime configuration.
struct PictureRatios {
    std::string BackPictureRatioX;
    std::string BackPictureRatioY;
    std::string LogoPictureRatioX;
    std::string LogoPictureRatioY;
};

struct VideoObject {
    std::string VideoFajl;
    bool videoAutoplay = false;
    std::int16_t videoLeft = 0;
    std::int16_t videoTop = 0;
    double Volume = 0;
    bool videorepeat = false;
};

/// What belongs to the open project and stands in no file.
struct WorkingValues {
    std::string ProjectPath;               ///< "" while never saved
    std::string Recent;                    ///< second copy of the path; feeds the file dialogs
    std::string LastProjectFolder;         ///< initial folder of the save dialog
    std::string TemplateRuntimePath;       ///< the template's "template.tavexe"
    std::string TemplateName;              ///< EditorTemplateName for the editor's template
    std::vector<std::string> listafajlova; ///< paths of the package's files, in package order
    std::int16_t FixedCommandCount = 0;
};

struct ProjectDocument {
    BaseSettings OsnovnaPodesavanja;
    MainTexts OsnovniPodaci;
    CommandLook IzvrsneKomande;
    std::array<CommandDescription, FixedCommandRows> OpisKomandi;
    std::array<CommandEntry, AdditionalCommandRows> DodatneKomande;
    MenuTitleTexts MenuTitles;
    SoundSpec Zvuk;
    ScreenSpec Uvod;
    ScreenSpec Izlaz;
    std::array<std::string, FontRows> Fontovi;
    EffectSet Efekti;
    StartMessageSpec Poruke;
    ExpirationSpec Expiration;
    ShortcutList Precice;
    CanvasSpec NapredniSabloni;
    std::array<TextObject, TextRows> ObjTekst;
    PictureRatios Ratios;
    std::array<VideoObject, VideoRows> Video;
    WorkingValues Working;

    /// The folder with the disc's content.
    [[nodiscard]] const std::string& CdFolder() const {
        return OsnovnaPodesavanja.GlavniDirektorijum;
    }
};

/// `TemplateName` of the visual editor's template.
inline constexpr const char* EditorTemplateName = "ADVANCED VISUAL EDITOR";

} // namespace tavmoor
