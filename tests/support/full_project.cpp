#include "support/full_project.h"

#include <string_view>
#include <type_traits>

namespace tavmoor::test {

namespace {

using Text = std::string;

Text Stored(const Text& value) {
    return value;
}
Text Stored(int value) {
    return std::to_string(value);
}

/// Sets fields one by one and puts down the lines that they must give.
class Script {
public:
    explicit Script(FullProject& full) : full_(full) {}

    void Section(const Text& name) { Both("[" + name + "]"); }
    void Both(const Text& line) {
        full_.projectText += line + "\r\n";
        full_.configurationText += line + "\r\n";
    }
    void ProjectLine(const Text& line) { full_.projectText += line + "\r\n"; }
    void ConfigurationLine(const Text& line) { full_.configurationText += line + "\r\n"; }

    /// A field whose value stands in the files as it is.
    template <typename Member, typename Value>
    void Put(const Text& key, Member& member, const Value& value) {
        Put(key, member, value, Stored(value));
    }
    /// A field with another stored form.
    template <typename Member, typename Value>
    void Put(const Text& key, Member& member, const Value& value, const Text& stored) {
        Put(key, member, value, stored, stored);
    }
    /// A field whose form differs between the files.
    template <typename Member, typename Value>
    void Put(const Text& key, Member& member, const Value& value, const Text& inProject,
             const Text& inConfiguration) {
        Set(member, value);
        ProjectLine(key + "=" + inProject);
        ConfigurationLine(key + "=" + inConfiguration);
    }
    /// A path that the configuration reduces to its name.
    void Path(const Text& key, Text& member, const Text& folder, const Text& name) {
        Put(key, member, folder + name, folder + name, name);
    }
    template <typename Member, typename Value>
    void ProjectOnly(const Text& key, Member& member, const Value& value) {
        Set(member, value);
        ProjectLine(key + "=" + Stored(value));
    }
    template <typename Member, typename Value>
    void ConfigurationOnly(const Text& key, Member& member, const Value& value) {
        Set(member, value);
        ConfigurationLine(key + "=" + Stored(value));
    }

private:
    template <typename Member, typename Value>
    void Set(Member& member, const Value& value) {
        if constexpr (std::is_same_v<Member, Text>) {
            member = value;
        } else {
            member = static_cast<Member>(value);
        }
    }

    FullProject& full_;
};

void BaseAndTitles(Script& s, ProjectDocument& d) {
    BaseSettings& b = d.OsnovnaPodesavanja;
    s.Section("Osnovna podesavanja");
    s.ProjectOnly("Glavni direktorijum", b.GlavniDirektorijum, "Z:\\disc");
    s.ProjectOnly("Sablon", b.Sablon, "Z:\\templates\\gone\\gone.tavt");
    s.Path("Pozadinska slika", b.PozadinskaSlika, "Z:\\art\\", "back.jpg");
    s.Put("Boja prozora", b.BojaProzora, 1193046);
    s.Put("PodesiVelicinu", b.PodesiVelicinu, true, "Da");
    s.Put("PodesiSirinu", b.PodesiSirinu, 640);
    s.Put("PodesiVisinu", b.PodesiVisinu, 480);
    s.Put("CeoEkran", b.CeoEkran, true, "Da");
    s.Put("BojaEkrana", b.BojaEkrana, "-2147483643");
    s.Path("backscreenslika", b.backscreenslika, "Z:\\art\\", "screen.bmp");
    s.Put("Backscrpredpos", b.Backscrpredpos, false, "Ne");
    s.Put("backscreenpicpozicija", b.backscreenpicpozicija, "Ne");
    s.Put("PozicijaX", b.PozicijaX, -12);
    s.Put("PozicijaY", b.PozicijaY, 34);

    MainTexts& t = d.OsnovniPodaci;
    s.Section("Osnovni podaci");
    s.ProjectOnly("exename", t.exename, "start.exe");
    s.Put("Tasknaslov", t.Tasknaslov, "Task\r\nbar", "TaskChr$(13)Chr$(10)bar");
    s.Put("Logotekst", t.Logotekst, "Logo & text", "Logo Chr$(38) text");
    s.Put("Logotekstboja", t.Logotekstboja, 101);
    s.Path("Logoslika", t.Logoslika, "Z:\\art\\", "logo.gif");
    s.Put("Glavninaslov", t.Glavninaslov, "A&B", "AChr$(38)B");
    s.Put("GlavninaslovFont", t.GlavninaslovFont, "Main font");
    s.Put("GlnaslovVel", t.GlnaslovVel, "21");
    s.Put("GlnaslovBoja", t.GlnaslovBoja, 102);
    s.Put("GlavniOpisnaslov", t.GlavniOpisnaslov, "C\nD", "CChr$(10)D");
    s.Put("GlavniOpisnaslovFont", t.GlavniOpisnaslovFont, "Heading font");
    s.Put("GlavniOpisnaslovVel", t.GlavniOpisnaslovVel, "22");
    s.Put("GlavniOpisnaslovBoja", t.GlavniOpisnaslovBoja, 103);
    s.Put("GlavniOpisnaslovBold", t.GlavniOpisnaslovBold, true, "True");
    s.Put("GlavniOpisnaslovItalic", t.GlavniOpisnaslovItalic, false, "False");
    s.Put("GlavniOpis", t.GlavniOpis, "E&F", "EChr$(38)F");
    s.Put("GlavniOpisFont", t.GlavniOpisFont, "Body font");
    s.Put("GlavniOpisVel", t.GlavniOpisVel, "23");
    s.Put("GlavniOpisBoja", t.GlavniOpisBoja, 104);
    s.Put("GlavniOpisBold", t.GlavniOpisBold, false, "False");
    s.Put("GlavniOpisItalic", t.GlavniOpisItalic, true, "True");
    t.Opisprovidan = true;
    s.ProjectLine("Opis providan=1");
    s.Path("Ikona", t.Ikona, "Z:\\art\\", "disc.ico");
    s.Put("Font", t.Font, "Logo font");
    s.Put("Velicina", t.Velicina, "24");
    s.Put("Stil", t.Stil, "Italic");
    s.Put("Efekti", t.Efekti, "StrikeThru, Underline");
    s.Put("Vertekst", t.Vertekst, "Up & down", "Up & down", "Up Chr$(38) down");
    s.Put("Vertfont", t.Vertfont, "Vertical font");
    s.Put("Vertfontvelicina", t.Vertfontvelicina, "25");
    s.ConfigurationOnly("Vertfontboja", t.Vertfontboja, 105);
    s.ConfigurationLine("Opis providan=1");
}

void Commands(Script& s, ProjectDocument& d) {
    CommandLook& c = d.IzvrsneKomande;
    s.Section("Izvrsne komande");
    s.Put("Izlaz", c.Izlaz, "Leave & go", "Leave & go", "Leave Chr$(38) go");
    s.Put("Exitdesctitle", c.Exitdesctitle, "&1", "Chr$(38)1");
    s.Put("Exitdescription", c.Exitdescription, "&2", "Chr$(38)2");
    s.Put("Sounddesctitle", c.Sounddesctitle, "&3", "Chr$(38)3");
    s.Put("Sounddescription", c.Sounddescription, "&4", "Chr$(38)4");
    for (std::size_t i = 1; i <= 6; ++i) {
        const Text n = std::to_string(i);
        FixedCommand& f = c.Komande[i];
        s.Put("Fajl" + n, f.Fajl, "bin\\tool" + n + ".exe");
        s.Put("Opis" + n, f.Opis, "&" + n, "Chr$(38)" + n);
        s.Put("Parametar" + n, f.Parametar, "/p" + n);
        s.Put("Vrsta" + n, f.Vrsta, "Run program" + n);
        s.Put("Zatvara" + n, f.Zatvara, static_cast<int>(i % 2));
    }
    s.Put("Boja slova", c.Bojaslova, "111");
    s.ProjectLine("Boja pozadine  komandi=112");
    s.ConfigurationLine("Boja pozadine komandi=112");
    s.Put("Boja pozadine", c.Bojapozadine, 113);
    s.Put("Boja pozadine komandi", c.Bojapozadinekomandi, "112");
    s.Put("Font", c.Font, "Menu font");
    s.Put("Velicina", c.Velicina, "26");
    s.Put("Add shadow", c.Addshadow, true, "1");
    s.Put("Boja senke", c.Bojasenke, "114");

    s.Section("Opis komandi");
    for (std::size_t i = 1; i <= 6; ++i) {
        const Text n = std::to_string(i);
        s.Put("C" + n, d.OpisKomandi[i].C, "&c" + n, "Chr$(38)c" + n);
        s.Put("O" + n, d.OpisKomandi[i].O, "&o" + n, "Chr$(38)o" + n);
    }

    s.Section("Dodatne komande");
    for (std::size_t i = 0; i <= 100; ++i) {
        const Text n = std::to_string(i);
        CommandEntry& a = d.DodatneKomande[i];
        if (i == 1) {
            s.Put("addname1", a.addname, "  ", "#Empty#");
        } else {
            s.Put("addname" + n, a.addname, "N&" + n, "NChr$(38)" + n);
        }
        s.Put("adddesctitle" + n, a.adddesctitle, "T&" + n, "TChr$(38)" + n);
        s.Put("adddescription" + n, a.adddescription, "D&" + n, "DChr$(38)" + n);
        s.Put("addtarget" + n, a.addtarget, "docs\\file" + n + ".pdf");
        s.Put("addparam" + n, a.addparam, "/a" + n);
        s.Put("addtype" + n, a.addtype, "Open file" + n);
        s.Put("addclose" + n, a.addclose, "1" + n);
        s.Put("addStopBackgroundMusic" + n, a.addStopBackgroundMusic, "2" + n);
        s.ProjectOnly("AddID" + n, a.AddID, 1000000 + static_cast<int>(i));
    }

    s.Section("Menu titles");
    s.Put("TitleMain", d.MenuTitles.TitleMain, "&m", "Chr$(38)m");
    s.Put("Titleinfo", d.MenuTitles.Titleinfo, "&i", "Chr$(38)i");
    s.Put("Titleprog", d.MenuTitles.Titleprog, "&p", "Chr$(38)p");
    s.Put("Titleaddit", d.MenuTitles.Titleaddit, "&a", "Chr$(38)a");
}

void SoundAndScreens(Script& s, ProjectDocument& d) {
    SoundSpec& z = d.Zvuk;
    s.Section("Zvuk");
    s.Path("Fajl", z.Fajl, "Z:\\music\\", "tune.mp3");
    s.Put("Akcija", z.Akcija, true, "1");
    s.Put("Ponovi", z.Ponovi, 3);
    s.Put("Pauza", z.Pauza, 4);
    s.Put("Komanda", z.Komanda, "&s", "Chr$(38)s");
    s.Put("Signal", z.Signal, true, "1");
    s.Path("SignalFajl", z.SignalFajl, "Z:\\music\\", "click.wav");

    ScreenSpec& u = d.Uvod;
    s.Section("Uvod");
    s.Put("Prikazi", u.Prikazi, true, "1");
    s.Put("ClickThrough", u.ClickThrough, false, "0");
    s.Put("Poruka", u.Tekst, "Hel\nlo", "HelChr$(10)lo");
    s.Put("Font", u.Font, "Splash font");
    s.Put("Fontvelicina", u.Fontvelicina, "27");
    s.Put("Bold", u.Bold, true, "1");
    s.Put("Italic", u.Italic, false, "0");
    s.Put("Underline", u.Underline, true, "1");
    s.Put("Bojateksta", u.Bojateksta, 121);
    s.Path("Slika", u.Slika, "Z:\\art\\", "splash.jpg");
    s.Put("Opcija", u.Opcija, 2);
    s.Put("Bojaprozora", u.Bojaprozora, 122);
    s.Put("Vreme", u.Vreme, "6");
    s.Put("Visina", u.Visina, 123);
    s.Put("Sirina", u.Sirina, 124);
    s.Put("Polozajteksta", u.Polozajteksta, "Top right");
    s.Put("Polozajslike", u.Polozajslike, "Botton left");

    ScreenSpec& x = d.Izlaz;
    s.Section("Izlaz");
    s.Put("Prikazi", x.Prikazi, false, "0");
    s.Put("ClickThroughExit", x.ClickThrough, true, "1");
    s.Put("Tekst", x.Tekst, "B&ye", "BChr$(38)ye");
    s.Put("Font", x.Font, "Exit font");
    s.Put("Fontvelicina", x.Fontvelicina, "28");
    s.Put("Bojateksta", x.Bojateksta, 131);
    s.Put("Bold", x.Bold, false, "0");
    s.Put("Italic", x.Italic, true, "1");
    s.Put("Underline", x.Underline, false, "0");
    s.Path("Slika", x.Slika, "Z:\\art\\", "exit.jpg");
    s.Put("Opcija", x.Opcija, 3);
    s.Put("Bojaprozora", x.Bojaprozora, 132);
    s.Put("Vreme", x.Vreme, "7");
    s.Put("Visina", x.Visina, 133);
    s.Put("Sirina", x.Sirina, 134);
    s.Put("Polozajteksta", x.Polozajteksta, "Bottom center");
    s.Put("Polozajslike", x.Polozajslike, "Centered on window");

    s.ProjectLine("[Fontovi]");
    for (std::size_t i = 0; i <= 20; ++i) {
        const Text n = std::to_string(i);
        s.ProjectOnly("Font" + n, d.Fontovi[i], "Z:\\fonts\\f" + n + ".ttf");
    }

    EffectSet& e = d.Efekti;
    s.Section("Efekti");
    s.Put("Splash fade in", e.Splashfadein, true, "True");
    s.Put("Splash fade out", e.Splashfadeout, false, "False");
    s.Put("Main fade in", e.Mainfadein, false, "False");
    s.Put("Main fade out", e.Mainfadeout, true, "True");
    s.Put("Exit fade in", e.Exitfadein, true, "True");
    s.Put("Exit fade out", e.Exitfadeout, true, "True");
    s.Put("esplashenter", e.esplashenter, 11);
    s.Put("emainenter", e.emainenter, 12);
    s.Put("eexitenter", e.eexitenter, 13);
    s.Put("esplashleave", e.esplashleave, 14);
    s.Put("emainleave", e.emainleave, 15);
    s.Put("eexitleave", e.eexitleave, 16);
}

void Messages(Script& s, ProjectDocument& d) {
    StartMessageSpec& p = d.Poruke;
    s.Section("Poruke");
    s.Put("Vrsta", p.Vrsta, 2);
    s.Put("Naslov", p.Naslov, "Welcome");
    s.Put("Tekst", p.Tekst, "Hi&", "HiChr$(38)");
    s.Put("Dugme1", p.Dugme1, "Yes");
    s.Put("Komanda1", p.Komanda1, 1);
    s.Put("Dugme2", p.Dugme2, "No");
    s.Put("Komanda2", p.Komanda2, -1);
    s.Put("Meta1", p.Meta1, "m1");
    s.Put("Meta2", p.Meta2, "m2");
    s.Put("Par1", p.Par1, "p1");
    s.Put("Par2", p.Par2, "p2");

    ExpirationSpec& x = d.Expiration;
    s.Section("Expiration");
    s.Put("Enabled", x.Enabled, true, "True");
    s.Put("Godina", x.Godina, "2031");
    s.Put("Mesec", x.Mesec, "12");
    s.Put("Dan", x.Dan, "24");
    s.Put("Naslov", x.Naslov, "Over");
    s.Put("Poruka", x.Poruka, "End\n", "EndChr$(10)");
    s.Put("Vrsta", x.Vrsta, "1");
    s.Put("Dugme1Naslov", x.Dugme1Naslov, "b1");
    s.Put("Dugme2Naslov", x.Dugme2Naslov, "b2");
    s.Put("Dugme1Komanda", x.Dugme1Komanda, "3");
    s.Put("Dugme2Komanda", x.Dugme2Komanda, "4");
    s.Put("IsticanjeDugme1Meta", x.IsticanjeDugme1Meta, "t1");
    s.Put("IsticanjeDugme2Meta", x.IsticanjeDugme2Meta, "t2");
    s.Put("IsticanjeDugme1Param", x.IsticanjeDugme1Param, "q1");
    s.Put("IsticanjeDugme2Param", x.IsticanjeDugme2Param, "q2");

    s.Section("Precice");
    s.Put("Enabled", d.Precice.Enabled, true, "True");
    for (std::size_t i = 0; i <= 50; ++i) {
        const Text n = std::to_string(i);
        ShortcutEntry& e = d.Precice.Precice[i];
        s.Put("Ime" + n, e.Ime, "name" + n);
        s.Put("Lokacija" + n, e.Lokacija, "Desktop" + n);
        s.Put("Meta" + n, e.Meta, "target" + n);
        s.Put("Ekstra" + n, e.Ekstra, "group" + n);
    }
}

void Canvas(Script& s, CanvasSpec& c, const Text& picture, const Text& pictureName) {
    s.Section("Napredni sabloni");
    s.Put("AutorunWidth", c.AutorunWidth, 9001);
    s.Put("AutorunHeight", c.AutorunHeight, 9002);
    s.Put("AutorunFixedSize", c.AutorunFixedSize, true, "True");
    s.Put("LogoTekstTop", c.LogoTekstTop, 9003);
    s.Put("LogoTekstLeft", c.LogoTekstLeft, 9004);
    s.Put("MainAutorunTekstTop", c.MainAutorunTekstTop, 9005);
    s.Put("MainAutorunTekstLeft", c.MainAutorunTekstLeft, 9006);
    s.Put("SlikaLogoX", c.SlikaLogoX, -32768);
    s.Put("SlikaLogoY", c.SlikaLogoY, 32767);
    s.Put("GlavniOpisNaslovX", c.GlavniOpisNaslovX, 9007);
    s.Put("GlavniOpisNaslovY", c.GlavniOpisNaslovY, 9008);
    s.Put("GlavniOpisNaslovWidth", c.GlavniOpisNaslovWidth, 9009);
    s.Put("GlavniOpisX", c.GlavniOpisX, 9010);
    s.Put("GlavniOpisY", c.GlavniOpisY, 9011);
    s.Put("GlavniOpisWidth", c.GlavniOpisWidth, 9012);
    s.Put("GlavniOpisHeight", c.GlavniOpisHeight, 9013);
    for (std::size_t i = 0; i <= 3; ++i) {
        const Text n = "(" + std::to_string(i) + ")";
        FixedText& t = c.Tekst[i];
        s.Put("TekstUnderline" + n, t.TekstUnderline, i == 2, i == 2 ? "True" : "False");
        s.Put("TekstBackgroundStyle" + n, t.TekstBackgroundStyle, static_cast<int>(i % 2));
        s.Put("TekstBackgroundColor" + n, t.TekstBackgroundColor, "14" + std::to_string(i));
        s.Put("Poravnanje" + n, t.Poravnanje, static_cast<int>(3 - i));
    }
    for (const std::size_t i : {0U, 7U, 100U}) {
        const Text n = "(" + std::to_string(i) + ")";
        const int base = static_cast<int>(i);
        ButtonObject& b = c.Dugme[i];
        b.DugmeExists = true;
        s.Put("DugmeX" + n, b.DugmeX, 1000 + base);
        s.Put("DugmeY" + n, b.DugmeY, 2000 + base);
        s.Put("DugmeForeBoja" + n, b.DugmeForeBoja, "15" + std::to_string(i));
        s.Put("DugmeBackBoja" + n, b.DugmeBackBoja, "16" + std::to_string(i));
        s.Put("DugmeBorderBoja" + n, b.DugmeBorderBoja, "17" + std::to_string(i));
        s.Put("DugmeFontName" + n, b.DugmeFontName, "Button font" + n);
        s.Put("DugmeFontSize" + n, b.DugmeFontSize, 30 + base);
        s.Put("DugmeItalic" + n, b.DugmeItalic, i == 0, i == 0 ? "True" : "False");
        s.Put("DugmeBold" + n, b.DugmeBold, i == 7, i == 7 ? "True" : "False");
        s.Put("DugmeBorderVisible" + n, b.DugmeBorderVisible, i == 0, i == 0 ? "True" : "False");
        s.Put("DugmeResizeManual" + n, b.DugmeResizeManual, i != 0, i != 0 ? "True" : "False");
        s.Put("DugmeWidth" + n, b.DugmeWidth, 3000 + base);
        s.Put("DugmeID" + n, b.DugmeID, 9999999 - base);
        s.Put("DugmePictureFile" + n, b.DugmePictureFile, picture, picture, pictureName);
        s.Put("DugmeStretchToPicture" + n, b.DugmeStretchToPicture, 1);
    }
    s.Put("WindowMaximized", c.WindowMaximized, true, "True");
}

void TextsAndVideos(Script& s, ProjectDocument& d) {
    s.Section("ObjTekst");
    for (const std::size_t i : {0U, 42U, 99U}) {
        const Text n = "(" + std::to_string(i) + ")";
        const int base = static_cast<int>(i);
        const bool first = i == 0;
        TextObject& t = d.ObjTekst[i];
        s.Put("TekstBoxX" + n, t.TekstBoxX, 100 + base);
        s.Put("TekstBoxY" + n, t.TekstBoxY, 300 + base);
        s.Put("TekstBoxCaption" + n, t.TekstBoxCaption, "&" + n, "Chr$(38)" + n);
        s.Put("TekstBoxVisible" + n, t.TekstBoxVisible, true, "True");
        s.Put("TekstBoxW" + n, t.TekstBoxW, 500 + base);
        s.Put("TekstBoxH" + n, t.TekstBoxH, 700 + base);
        s.Put("TekstBoxFontName" + n, t.TekstBoxFontName, "Text font" + n);
        s.Put("TekstBoxFontSize" + n, t.TekstBoxFontSize, 20 + base);
        s.Put("TekstBoxFontB" + n, t.TekstBoxFontB, first, first ? "True" : "False");
        s.Put("TekstBoxFontU" + n, t.TekstBoxFontU, !first, first ? "False" : "True");
        s.Put("TekstBoxFontI" + n, t.TekstBoxFontI, i == 42, i == 42 ? "True" : "False");
        s.Put("TekstBoxTransparent" + n, t.TekstBoxTransparent, first, first ? "True" : "False",
              first ? "-1" : "0");
        s.Put("tekstBoxForeColor" + n, t.tekstBoxForeColor, "18" + std::to_string(i));
        s.Put("tekstBoxBackColor" + n, t.tekstBoxBackColor, "19" + std::to_string(i));
        s.Put("tekstBoxAlign" + n, t.tekstBoxAlign, "2" + n);
    }
    s.ConfigurationOnly("backpicOdnosx", d.Ratios.BackPictureRatioX, "1.25");
    s.ConfigurationOnly("backpicOdnosy", d.Ratios.BackPictureRatioY, "1.5");
    s.ConfigurationOnly("LogopicOdnosx", d.Ratios.LogoPictureRatioX, "0.75");
    s.ConfigurationOnly("LogopicOdnosy", d.Ratios.LogoPictureRatioY, "2");

    s.Section("Video");
    for (std::size_t i = 1; i <= 25; ++i) {
        const Text n = std::to_string(i);
        const int base = static_cast<int>(i);
        VideoObject& v = d.Video[i];
        s.Path("VideoFajl" + n, v.VideoFajl, "Z:\\films\\", "film" + n + ".avi");
        s.Put("videoAutoplay" + n, v.videoAutoplay, i == 1, i == 1 ? "True" : "False");
        s.Put("videoLeft" + n, v.videoLeft, 4000 + base);
        s.Put("videoTop" + n, v.videoTop, 5000 + base);
        s.Put("Volume" + n, v.Volume, base + 0.5, n + ".5");
        s.Put("videorepeat" + n, v.videorepeat, i == 2, i == 2 ? "True" : "False");
    }
}

} // namespace

std::unique_ptr<FullProject> MakeFullProject(const std::string& buttonPicture,
                                             const std::string& buttonPictureName) {
    auto full = std::make_unique<FullProject>();
    Script script(*full);
    BaseAndTitles(script, full->document);
    Commands(script, full->document);
    SoundAndScreens(script, full->document);
    Messages(script, full->document);
    Canvas(script, full->document.NapredniSabloni, buttonPicture, buttonPictureName);
    TextsAndVideos(script, full->document);
    return full;
}

} // namespace tavmoor::test
