#include "sound/player/player.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <cstring>
#include <numbers>

#include "app/program.h"
#include "core/end_of_game.h"
#include "core/new_game.h"
#include "core/turn.h"
#include "sound/player/wave.h"

using namespace std::chrono_literals;

namespace {

constexpr int window = 441;  // frames that are looked at together: 10 ms
constexpr int loudness = 8000;

QByteArray Tone(int hz, int ms) {
    std::vector<std::int16_t> wave(static_cast<std::size_t>(ms) * 44100 / 1000);
    for (std::size_t i = 0; i < wave.size(); ++i)
        wave[i] = static_cast<std::int16_t>(
            loudness * std::sin(2 * std::numbers::pi * hz * static_cast<double>(i) / framesPerSecond));
    return {reinterpret_cast<const char*>(wave.data()), static_cast<qsizetype>(wave.size() * 2)};
}

QByteArray Wave(const QByteArray& mono) {
    QByteArray header("RIFF....WAVEfmt \x10\0\0\0\1\0\1\0\x44\xAC\0\0\x88\x58\1\0\2\0\x10\0data....", 44);
    const auto write = [&](int at, qsizetype number) { std::memcpy(header.data() + at, &number, 4); };
    write(4, mono.size() + 36);
    write(40, mono.size());
    return header + mono;
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

QByteArray Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct WaitingClock final : Clock {
    void Wait(int ms) override { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }
    double TimeOfDay() override { return 0; }
    std::string ShortDate() override { return ""; }
};

// A folder with sounds in it, each a tone of its own, and the file that takes down what would be heard. Sound runs ten
// times as fast as the clock, or about as fast.
struct Recording {
    virtual ~Recording() = default;
    virtual std::string Send(const std::string& command) = 0;

    explicit Recording(bool fast = true) {
        for (const char* name : {"LCWAVS", "BGMusic", "scores"}) QDir(dir.path()).mkdir(name);
        setenv("SDL_DISKAUDIOFILE", Path("heard").toLocal8Bit(), 1);
        fast ? setenv("SDL_DISKAUDIODELAY", "1", 1) : unsetenv("SDL_DISKAUDIODELAY");
    }

    QString Path(const QString& name) const { return dir.filePath(name); }
    std::string Folder() const { return dir.path().toStdString() + '/'; }
    void AddEffect(const QString& name, int hz, int ms) { Write(Path("LCWAVS/" + name + ".WAV"), Wave(Tone(hz, ms))); }
    void AddMusic(const QString& name, const QByteArray& tones) {
        Write(Path("tones.wav"), Wave(tones));
        ASSERT_EQ(QProcess::execute("lame", {"--quiet", "-m", "m", "-b", "320", Path("tones.wav"), Path(name)}), 0);
    }
    std::string Open(const QString& name, const std::string& alias) const {
        return "open \"" + Path(name).toStdString() + "\" alias " + alias;
    }

    int Status(const std::string& query) { return std::atoi(Send("status " + query).c_str()); }
    template <typename Condition>
    static bool Waits(Condition condition) {
        return QTest::qWaitFor(condition, 4000);
    }
    bool Reaches(const std::string& alias, int ms) {
        return Waits([&] { return Status(alias + " position") >= ms; });
    }

    struct Heard {
        int first = -1, last = -1;  // in ms; -1: never
        int length = 0;             // ms in which it is heard
        double level = 0;           // the amplitude it mostly has, as a part of the tone's own
    };

    // After the device has closed: what was heard of a tone since it opened.
    Heard Listen(int hz) const {
        const QByteArray bytes = Read(Path("heard"));
        Heard heard;
        std::vector<double> levels;
        for (int at = 0; (at + window) * 4 <= bytes.size(); at += window) {
            double re = 0, im = 0;
            for (int i = 0; i < window; ++i) {
                std::int16_t sample = 0;
                std::memcpy(&sample, bytes.data() + (at + i) * 4, 2);
                re += sample * std::cos(2 * std::numbers::pi * hz * i / framesPerSecond);
                im += sample * std::sin(2 * std::numbers::pi * hz * i / framesPerSecond);
            }
            const double level = std::hypot(re, im) * 2 / window / loudness;
            if (level < 0.1) continue;
            if (levels.empty()) heard.first = at * 10 / window;
            heard.last = at * 10 / window;
            heard.length += 10;
            levels.push_back(level);
        }
        std::nth_element(levels.begin(), levels.begin() + static_cast<std::ptrdiff_t>(levels.size() / 2), levels.end());
        if (!levels.empty()) heard.level = levels[levels.size() / 2];
        return heard;
    }

    QTemporaryDir dir;
};

struct Sound : Recording {
    using Recording::Recording;

    std::string Send(const std::string& command) override { return player->Send(command); }
    // Returns the ms that it took.
    double PlayEffectWait(const char* name) {
        const auto begin = SoundClock::now();
        player->PlayEffectWait(name);
        return std::chrono::duration<double, std::milli>(SoundClock::now() - begin).count();
    }
    void Close() { player.reset(); }

    WaitingClock clock;
    std::unique_ptr<Player> player = std::make_unique<Player>(Folder(), clock);
};

TEST(Player, ANewEffectTakesTheOldOnesPlace) {
    Sound s;
    s.AddEffect("long", 500, 3000);
    s.AddEffect("short", 2000, 300);
    s.player->PlayEffect("long");
    QTest::qWait(60);
    s.player->PlayEffect("short");
    QTest::qWait(60);
    s.player->PlayEffect("short");  // from its beginning
    QTest::qWait(5);
    s.player->PlayEffect("missing");  // silence takes its place
    QTest::qWait(60);
    s.Close();
    const auto first = s.Listen(500), second = s.Listen(2000);
    EXPECT_TRUE(first.length > 200 && first.length < 2500) << first.length;
    EXPECT_NEAR(first.level, 1, 0.05);
    EXPECT_TRUE(second.length > 300 && second.length < 590) << second.length;
    EXPECT_NEAR(second.first, first.last, 25);
}

TEST(Player, TheWaitEndsWithTheEffect) {
    Sound s(false);
    s.AddEffect("effect", 1000, 400);
    for (int i = 0; i < 2; ++i) {
        const double waited = s.PlayEffectWait("effect");
        EXPECT_TRUE(waited > 300 && waited < 900) << waited;
    }
    EXPECT_LT(s.PlayEffectWait("missing"), 50);
    s.Close();
    EXPECT_NEAR(s.Listen(1000).length, 800, 40);
}

TEST(Player, WithoutADeviceThereIsNoWaitAndItComesBack) {
    Sound s(false);
    s.AddEffect("effect", 1000, 400);
    s.AddMusic("song.mp3", Tone(500, 5000));
    setenv("SDL_DISKAUDIOFILE", s.Path("nowhere/heard").toLocal8Bit(), 1);
    EXPECT_LT(s.PlayEffectWait("effect"), 200);
    s.Send(s.Open("song.mp3", "song"));
    s.Send("play song");
    EXPECT_LT(s.PlayEffectWait("effect"), 50);
    EXPECT_EQ(s.Send("status song position"), "0");
    setenv("SDL_DISKAUDIOFILE", s.Path("heard").toLocal8Bit(), 1);
    s.player->PlayEffect("effect");
    EXPECT_TRUE(s.Reaches("song", 300));
    s.Close();
    EXPECT_GT(s.Listen(1000).length, 150) << "but not those of before";
    EXPECT_LE(s.Listen(1000).length, 420);
}

TEST(Player, TwoPiecesAndAnEffectSoundTogetherEachAtItsVolume) {
    Sound s;
    s.AddEffect("effect", 3000, 3000);
    s.AddMusic("one.mp3", Tone(500, 3000));
    s.AddMusic("two.mp3", Tone(1500, 3000));
    s.Send("setaudio myMP3 Volume to 0");  // closed: changes nothing
    s.Send("open " + s.Folder() + "one.mp3 type MPEGVideo alias myMP3");
    s.Send(s.Open("two.mp3", "song"));
    s.Send("setaudio myMP3 Volume to 500");
    for (const char* command : {"play myMP3 from 0", "play song"}) EXPECT_EQ(s.Send(command), "");
    s.player->PlayEffect("effect");
    EXPECT_TRUE(s.Reaches("song", 1500));
    for (const char* command : {"setaudio song Volume to 0", "setaudio myMP3 Volume to x", "close Intro", "play"})
        EXPECT_EQ(s.Send(command), "");
    EXPECT_TRUE(s.Reaches("song", 3000) && s.Reaches("myMP3", 3000));
    s.Close();
    EXPECT_NEAR(s.Listen(3000).level, 1, 0.05);
    EXPECT_NEAR(s.Listen(500).level, 0.5, 0.05);
    EXPECT_NEAR(s.Listen(500).length, 3000, 60);
    EXPECT_NEAR(s.Listen(1500).level, 1, 0.05) << "no volume was sent to it at first";
    EXPECT_TRUE(s.Listen(1500).length > 1400 && s.Listen(1500).length < 2500) << s.Listen(1500).length;
}

TEST(Player, APausedPieceKeepsItsPlaceWhileTheDeviceIsClosed) {
    Sound s;
    s.player = std::make_unique<Player>(s.Folder(), s.clock, 50ms);
    s.AddMusic("song.mp3", Tone(500, 1000) + Tone(2000, 1000));
    const std::string open = s.Open("song.mp3", "myMP3");
    EXPECT_EQ(s.Send("status myMP3 position") + s.Send("status myMP3 length") + s.Send("play myMP3 from 0"), "");
    s.Send(open);
    EXPECT_EQ(s.Send("status myMP3 position"), "0");
    EXPECT_EQ(s.Send("resume myMP3"), "");  // was not paused
    const int length = s.Status("myMP3 length");
    EXPECT_NEAR(length, 2000, 60);
    QTest::qWait(30);
    EXPECT_EQ(s.Send("status myMP3 position"), "0");
    s.Send("play myMP3");
    EXPECT_TRUE(s.Reaches("myMP3", 1200));
    s.Send("pause myMP3");
    s.Send(open);  // is open
    const int place = s.Status("myMP3 position");
    QTest::qWait(400);
    EXPECT_EQ(s.Status("myMP3 position"), place);
    QFile::remove(s.Path("heard"));  // the device has closed, and opens another
    s.Send("resume myMP3");
    EXPECT_TRUE(s.Reaches("myMP3", length));
    EXPECT_EQ(s.Status("myMP3 position"), length);
    QTest::qWait(200);
    EXPECT_EQ(s.Listen(500).length, 0);
    EXPECT_NEAR(s.Listen(2000).length, length - place, 90);

    s.Send("play myMP3 from 0");
    EXPECT_LT(s.Status("myMP3 position"), length);
    EXPECT_TRUE(s.Reaches("myMP3", 200));
    s.Send("close myMP3");
    EXPECT_EQ(s.Send("status myMP3 position"), "");
    s.Close();
    EXPECT_GT(s.Listen(500).length, 0);
}

TEST(Player, DamagedFilesAreSilent) {
    Sound s;
    s.AddEffect("good", 500, 1000);
    s.AddMusic("good.mp3", Tone(2000, 1000));
    QByteArray noise(20000, '\0');
    unsigned state = 1;
    for (char& byte : noise) byte = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24);
    const QByteArray wave = Read(s.Path("LCWAVS/good.WAV")), music = Read(s.Path("good.mp3"));
    for (const auto& [name, bytes] : {std::pair<const char*, QByteArray>{"empty", ""}, {"noise", noise}}) {
        Write(s.Path(QString("LCWAVS/%1.WAV").arg(name)), bytes);
        Write(s.Path(QString("%1.mp3").arg(name)), bytes);
    }
    Write(s.Path("LCWAVS/header.WAV"), wave.left(44));
    Write(s.Path("LCWAVS/half.WAV"), wave.left(wave.size() / 2));
    Write(s.Path("half.mp3"), music.left(music.size() / 2));
    QDir(s.dir.path()).mkdir("LCWAVS/folder.WAV");
    QDir(s.dir.path()).mkdir("folder.mp3");
    for (const char* name : {"empty", "noise", "header", "folder", "missing", "../heard"})
        EXPECT_LT(s.PlayEffectWait(name), 50) << name;
    for (const char* name : {"empty.mp3", "noise.mp3", "folder.mp3", "missing.mp3", ""}) {
        s.Send(s.Open(name, "song"));
        EXPECT_EQ(s.Send("status song length") + s.Send("play song"), "") << name;
    }
    s.Send(s.Open("half.mp3", "song"));
    s.Send("play song");
    s.PlayEffectWait("half");
    EXPECT_TRUE(s.Reaches("song", s.Status("song length")));
    QTest::qWait(20);
    s.Close();
    EXPECT_NEAR(s.Listen(500).length, 500, 30);
    EXPECT_NEAR(s.Listen(2000).length, 500, 80);
}

TEST(Player, EveryFileOfTheGameOpensAndHasItsLength) {
    struct Limits {
        double least, most;  // seconds
        const char* names;
    };
    const Limits limits[] = {{0.4, 0.8, "LCWAVS/rollAll.WAV LCWAVS/rollSome.WAV LCWAVS/rollOne.WAV"},
                             {0.02, 0.12, "LCWAVS/holdDice.WAV LCWAVS/UnHoldDice.WAV"},
                             {0.1, 0.4, "LCWAVS/score.WAV LCWAVS/scoreZero.WAV LCWAVS/counter0.WAV"},
                             {0.1, 1.5, "LCWAVS/announce.WAV LCWAVS/hint.WAV LCWAVS/undo.WAV LCWAVS/redo.WAV"},
                             {1, 3, "LCWAVS/LuckyCup.WAV LCWAVS/applause.WAV LCWAVS/draw.WAV LCWAVS/newGame.WAV"},
                             {1.5, 10, "LCWAVS/counter7.WAV"},
                             {3, 6, "LCWAVS/GameOver1.mp3"},
                             {4, 8, "LCWAVS/GameOver2.mp3"},
                             {120, 240, "BGMusic/SONG01.mp3 BGMusic/SONG02.mp3"},
                             {15, 40, "BGMusic/Intro.mp3"}};
    for (const auto& [least, most, names] : limits)
        for (const QString& name : QString(names).split(' ')) {
            const std::string path = SOUNDS + name.toStdString();
            const auto piece = name.endsWith("mp3") ? Mp3::Open(path) : nullptr;
            const double frames = static_cast<double>(LoadWave(path).size()) / samplesPerFrame;
            const double seconds = piece ? piece->Length() / 1000.0 : frames / framesPerSecond;
            EXPECT_TRUE(seconds >= least && seconds <= most) << path << ' ' << seconds;
        }
}

TEST(SoundFiles, OnlyRegularFilesAreOpened) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath("a.WAV").toStdString();
    for (const auto& plant :
         {+[](const char* at) { return mkfifo(at, 0600); }, +[](const char* at) { return mkdir(at, 0700); },
          +[](const char* at) { return symlink("/dev/zero", at); }}) {
        ASSERT_EQ(plant(path.c_str()), 0);
        EXPECT_TRUE(LoadWave(path).empty() && !Mp3::Open(path));
        ASSERT_EQ(std::remove(path.c_str()), 0);
    }
}

// The whole program in a folder of its own, with sounds that can be told from each other.
struct SoundingProgram : Recording {
    SoundingProgram() {
        QFile::link(PLUGIN, Path("luckycup-sound.so"));
        AddMusic("BGMusic/SONG01.mp3", Tone(500, 2500));
        AddMusic("BGMusic/SONG02.mp3", Tone(1000, 2000));
        AddMusic("BGMusic/Intro.mp3", Tone(2000, 20000));
        AddEffect("rollAll", 3000, 300);
        program->game.settings.BGMusicEnabled = true;
        program->game.settings.BGMusicVolume = 500;
        program->game.settings.ConfirmOnExit = program->game.settings.ConfirmQuitGame = false;
        answerer.callOnTimeout([] {
            if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
        });
        answerer.start(20);
    }
    std::string Send(const std::string& command) override { return program->sound.Send(command); }
    void End() {
        program->window.close();
        program.reset();
    }

    Art art;
    std::unique_ptr<Program> program = std::make_unique<Program>(FilesInOneFolder(Folder()), art);
    QTimer answerer;
};

TEST(SoundingProgram, SongsAlternateAndPauseWithTheWindowAndARollIsHeard) {
    SoundingProgram t;
    t.program->ShowMainWindow();
    EXPECT_EQ(t.Status("myMP3 length"), 0);
    EXPECT_FALSE(Read("/proc/self/maps").contains("luckycup-sound")) << "a start pays for no sound";
    ASSERT_TRUE(t.Reaches("myMP3", 200));
    EXPECT_TRUE(Read("/proc/self/maps").contains("luckycup-sound"));
    t.program->window.showMinimized();
    const int place = t.Status("myMP3 position");
    QTest::qWait(600);
    EXPECT_EQ(t.Status("myMP3 position"), place);
    t.program->window.showNormal();
    t.program->gate.Run([&] { picRollDices_MouseUp(t.program->game); });
    for (int length : {2000, 2500})
        EXPECT_TRUE(t.Waits([&] { return std::abs(t.Status("myMP3 length") - length) < 99; }));
    EXPECT_TRUE(t.Reaches("myMP3", 200));
    t.End();
    const auto first = t.Listen(500), second = t.Listen(1000), roll = t.Listen(3000);
    EXPECT_TRUE(first.length > 2600 && first.level < 0.55) << first.length << ' ' << first.level;
    EXPECT_NEAR(second.length, 2000, 100);
    EXPECT_TRUE(first.first < second.first && first.last > second.last);
    EXPECT_NEAR(roll.length, 300, 30);
}

TEST(SoundingProgram, TheIntroComesTwoSecondsAfterTheGameAndEndsWithTheNext) {
    SoundingProgram t;
    t.program->ShowMainWindow();
    const auto over = [&] { t.program->gate.Run([&] { GameOver(t.program->game); }); };
    const auto next = [&] { t.program->gate.Run([&] { mnuNewGame_Click(t.program->game); }); };
    ASSERT_TRUE(t.Reaches("myMP3", 200));
    over();
    const auto begin = SoundClock::now();
    EXPECT_EQ(t.Status("myMP3 length") + t.Status("song length"), 0);
    ASSERT_TRUE(t.Reaches("song", 1));
    EXPECT_NEAR(std::chrono::duration<double>(SoundClock::now() - begin).count(), 2, 0.4);
    ASSERT_TRUE(t.Reaches("song", 300));
    next();
    EXPECT_EQ(t.Status("song length"), 0);
    EXPECT_TRUE(t.Reaches("myMP3", 200));
    over();
    next();
    EXPECT_FALSE(t.program->game.table.timers[Timer::Timer4].enabled);
    t.End();
    EXPECT_GT(t.Listen(2000).length, 250);
    EXPECT_GT(t.Listen(1000).first, t.Listen(2000).last);
}

}  // namespace

int main(int argc, char** argv) {
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SDL_AUDIODRIVER", "disk");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
