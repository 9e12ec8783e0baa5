#include "sound/player/player.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <cstring>
#include <fstream>
#include <map>
#include <numbers>
#include <random>

#include "app/program.h"
#include "core/end_of_game.h"
#include "core/silent_ports.h"
#include "tests/files.h"

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

struct WaitingClock final : SilentClock {
    void Wait(int ms) override { std::this_thread::sleep_for(std::chrono::milliseconds(ms)); }
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
    void AddEffect(const QString& name, int hz, int ms) {
        WriteFile(Path("LCWAVS/" + name + ".WAV"), Wave(Tone(hz, ms)));
    }
    void AddMusic(const QString& name, const QByteArray& tones) {
        WriteFile(Path("tones.wav"), Wave(tones));
        ASSERT_EQ(QProcess::execute("lame", {"--quiet", "-m", "m", "-b", "320", Path("tones.wav"), Path(name)}), 0);
    }
    std::string Open(const QString& name) const { return "open \"" + Path(name).toStdString() + "\" alias song"; }
    int Status(const std::string& query) { return std::atoi(Send("status " + query).c_str()); }
    bool Reaches(const std::string& alias, int ms) {
        return QTest::qWaitFor([&] { return Status(alias + " position") >= ms; }, 4000);
    }

    // After the device has closed: for how many ms a tone was heard, and how loud, as a part of its own amplitude.
    void ExpectTone(int hz, int least, int most, double level = 1) const {
        const QByteArray bytes = BytesOf(Path("heard"));
        std::vector<double> levels;
        for (qsizetype at = 0; (at + window) * 4 <= bytes.size(); at += window) {
            double re = 0, im = 0;
            for (int i = 0; i < window; ++i) {
                std::int16_t sample = 0;
                std::memcpy(&sample, bytes.data() + (at + i) * 4, 2);
                re += sample * std::cos(2 * std::numbers::pi * hz * i / framesPerSecond);
                im += sample * std::sin(2 * std::numbers::pi * hz * i / framesPerSecond);
            }
            const double amplitude = std::hypot(re, im) * 2 / window / loudness;
            if (amplitude > 0.1) levels.push_back(amplitude);
        }
        const auto ms = static_cast<int>(levels.size()) * 10;
        EXPECT_TRUE(ms >= least && ms <= most) << hz << " Hz for " << ms << " ms";
        std::ranges::sort(levels);
        EXPECT_NEAR(levels.at(levels.size() / 2), level, 0.05) << hz;
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

    WaitingClock clock;
    std::unique_ptr<Player> player = std::make_unique<Player>(Folder(), clock);
};

TEST(Player, PiecesSoundBesideEachOtherAndTheLastEffect) {
    Sound s;
    s.AddEffect("long", 500, 20000);
    s.AddEffect("longer", 2000, 20000);
    s.AddMusic("one.mp3", Tone(1000, 3000));
    s.AddMusic("two.mp3", Tone(3000, 4000));
    for (const char* command : {"status song position", "play song", "setaudio song Volume to 0", "play", ""})
        EXPECT_EQ(s.Send(command), "") << command;
    s.Send("open " + s.Folder() + "one.mp3 type MPEGVideo alias myMP3");
    for (const char* name : {"two.mp3", "one.mp3"}) s.Send(s.Open(name));  // the second time it is open
    s.Send("resume song");                                                 // was not paused
    EXPECT_NEAR(s.Status("song length"), 4000, 60);
    EXPECT_EQ(s.Send("status song position"), "0");
    s.player->PlayEffect("long");
    for (const char* command : {"setaudio song Volume to 500", "setaudio song Volume to x", "play song", "play myMP3"})
        EXPECT_EQ(s.Send(command), "") << command;
    QTest::qWait(60);
    s.player->PlayEffect("longer");
    QTest::qWait(60);
    s.player->PlayEffect("missing");  // silence takes its place
    EXPECT_TRUE(s.Reaches("myMP3", s.Status("myMP3 length")) && s.Reaches("song", s.Status("song length")));
    s.player.reset();
    s.ExpectTone(500, 200, 15000);
    s.ExpectTone(2000, 200, 15000);
    s.ExpectTone(1000, 2940, 3060);  // no volume was sent to it
    s.ExpectTone(3000, 3940, 4060, 0.5);
}

TEST(Player, WithoutADeviceThereIsNoWaitAndItComesBack) {
    Sound s(false);
    s.AddEffect("effect", 1000, 400);
    s.AddMusic("song.mp3", Tone(500, 5000));
    setenv("SDL_DISKAUDIOFILE", s.Path("nowhere/heard").toLocal8Bit(), 1);
    EXPECT_LT(s.PlayEffectWait("effect"), 200);
    s.Send(s.Open("song.mp3"));
    s.Send("play song");
    EXPECT_EQ(s.Send("status song position"), "0");
    setenv("SDL_DISKAUDIOFILE", s.Path("heard").toLocal8Bit(), 1);
    s.player->PlayEffect("effect");
    EXPECT_TRUE(s.Reaches("song", 500));
    double waited = 0;
    int tries = 0;  // a busy machine may hold the device up
    for (; waited < 300 && tries < 4; ++tries) waited = s.PlayEffectWait("effect");
    EXPECT_TRUE(waited > 300 && waited < 900) << waited;
    s.player.reset();
    s.ExpectTone(1000, 310, 420 * (1 + tries));  // but not the one of before
}

TEST(Player, DamagedFilesAreSilent) {
    Sound s;
    s.AddEffect("half", 500, 1000);
    s.AddMusic("LCWAVS/half.mp3", Tone(2000, 1000));
    QByteArray noise(20000, '\0');
    std::ranges::generate(noise, std::minstd_rand());
    for (const char* ending : {".WAV", ".mp3"}) {
        const auto file = [&](const QString& name) { return s.Path("LCWAVS/" + name + ending); };
        const QByteArray whole = BytesOf(file("half"));
        WriteFile(file("half"), whole.left(whole.size() / 2));
        WriteFile(file("header"), whole.left(44));
        WriteFile(file("empty"), "");
        WriteFile(file("noise"), noise);
        QDir().mkdir(file("folder"));
        EXPECT_EQ(mkfifo(file("pipe").toLocal8Bit(), 0600), 0);
    }
    for (const char* name : {"header", "empty", "noise", "folder", "pipe", "missing"}) {
        EXPECT_LT(s.PlayEffectWait(name), 100) << name;
        s.Send(s.Open(QString("LCWAVS/%1.mp3").arg(name)));
        EXPECT_EQ(s.Send("status song length") + s.Send("play song"), "") << name;
    }
    s.Send(s.Open("LCWAVS/half.mp3"));
    s.Send("play song");
    s.PlayEffectWait("half");
    EXPECT_TRUE(s.Reaches("song", s.Status("song length")));
    s.player.reset();
    s.ExpectTone(500, 470, 530);
    s.ExpectTone(2000, 420, 580);
}

// The whole program in a folder of its own, with pieces that are told by their length.
struct SoundingProgram : Recording {
    SoundingProgram() : Recording(false) {
        QFile::link(PLUGIN, Path("luckycup-sound.so"));
        for (int seconds = 10; const char* name : {"SONG01", "SONG02", "Intro"})
            AddMusic(QString("BGMusic/%1.mp3").arg(name), Tone(500, 1000 * seconds++));
        program->game.settings = {.ConfirmOnExit = false, .ConfirmQuitGame = false, .BGMusicEnabled = true};
        answerer.callOnTimeout([] {
            if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
        });
        answerer.start(20);
    }
    std::string Send(const std::string& command) override { return program->sound.Send(command); }
    // The seconds that each open piece lasts, in brackets when it stands.
    std::string Music() {
        std::string all;
        for (const std::string alias : {"myMP3", "song"}) {
            const int place = Status(alias + " position"), length = Status(alias + " length");
            if (length == 0) continue;
            const bool moves = QTest::qWaitFor([&] { return Status(alias + " position") != place; }, 200);
            const std::string seconds = std::to_string((length + 500) / 1000);
            all += ' ' + (moves ? seconds : '(' + seconds + ')');
        }
        return all;
    }

    Art art;
    std::unique_ptr<Program> program = std::make_unique<Program>(FilesInOneFolder(Folder()), art);
    QTimer answerer;
};

TEST(SoundingProgram, DoesWithTheMusicWhatEachEventAsks) {
    SoundingProgram t;
    frmLuckyCup& table = t.program->window;
    const std::map<std::string, std::function<void()>> events{
        {"wait", [] {}},
        {"minimise", [&] { table.showMinimized(); }},
        {"restore", [&] { table.showNormal(); }},
        {"over", [&] { t.program->gate.Run([&] { GameOver(t.program->game); }); }},
        {"two players", [&] { t.program->game.settings.NumberOfPlayers = 2; }},
        {"second player", [&] { t.program->game.session.SecondPlayerOnMove.fill(true); }}};
    t.program->ShowMainWindow();
    EXPECT_FALSE(BytesOf("/proc/self/maps").contains("luckycup-sound")) << "a start pays for no sound";
    std::ifstream in(CASES "music_events.txt");
    in.ignore(1000, '\n');
    int rows = 0, ms = 0;
    for (std::string event, music; in >> ms && std::getline(in >> std::ws, event, '|'); ++rows) {
        std::getline(in, music);
        const auto found = events.find(event);
        found != events.end() ? found->second() : table.findChild<QAction*>(event.c_str())->trigger();
        QTest::qWait(ms);
        EXPECT_EQ(t.Music(), music) << "row " << rows << ": " << event;
    }
    EXPECT_EQ(rows, 20);
    table.close();
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
