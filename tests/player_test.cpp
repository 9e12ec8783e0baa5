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
#include <numbers>

#include "app/program.h"
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
    std::string Open(const QString& name) const { return "open \"" + Path(name).toStdString() + "\" alias song"; }
    int Status(const std::string& query) { return std::atoi(Send("status " + query).c_str()); }
    bool Reaches(const std::string& alias, int ms) {
        return QTest::qWaitFor([&] { return Status(alias + " position") >= ms; }, 4000);
    }

    struct Heard {
        int length = 0;    // ms in which it is heard
        double level = 0;  // the mean of its amplitude, as a part of the tone's own
    };

    // After the device has closed: what was heard of a tone since it opened.
    Heard Listen(int hz) const {
        const QByteArray bytes = Read(Path("heard"));
        Heard heard;
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
            heard.length += 10;
            heard.level += level;
        }
        if (heard.length) heard.level *= 10.0 / heard.length;
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
    QTest::qWait(5);
    s.player->PlayEffect("missing");  // silence takes its place
    QTest::qWait(60);
    s.Close();
    const auto first = s.Listen(500), second = s.Listen(2000);
    EXPECT_TRUE(first.length > 200 && first.length < 2500) << first.length;
    EXPECT_NEAR(first.level, 1, 0.05);
    EXPECT_TRUE(second.length > 0 && second.length < 290) << second.length;
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
    const double waited = s.PlayEffectWait("effect");
    EXPECT_TRUE(waited > 300 && waited < 900) << waited;
    s.Close();
    const int length = s.Listen(1000).length;
    EXPECT_TRUE(length > 500 && length < 840) << length << ", but not that of before";
}

TEST(Player, APausedPieceKeepsItsPlaceWhileTheDeviceIsClosed) {
    Sound s;
    s.player = std::make_unique<Player>(s.Folder(), s.clock, 50ms);
    s.AddMusic("song.mp3", Tone(500, 1000) + Tone(2000, 1000));
    for (const char* command : {"status song position", "play song from 0", "setaudio song Volume to 0", "play", ""})
        EXPECT_EQ(s.Send(command), "") << command;
    s.Send(s.Open("song.mp3"));
    EXPECT_EQ(s.Send("resume song"), "");  // was not paused
    const int length = s.Status("song length");
    EXPECT_NEAR(length, 2000, 60);
    for (const char* command : {"play song", "setaudio song Volume to x"}) s.Send(command);
    EXPECT_TRUE(s.Reaches("song", 1200));
    s.Send("pause song");
    s.Send(s.Open("song.mp3"));  // is open
    const int place = s.Status("song position");
    QTest::qWait(400);
    EXPECT_EQ(s.Status("song position"), place);
    QFile::remove(s.Path("heard"));  // the device has closed, and opens another
    s.Send("resume song");
    EXPECT_TRUE(s.Reaches("song", length));
    QTest::qWait(200);
    EXPECT_EQ(s.Listen(500).length, 0);
    EXPECT_NEAR(s.Listen(2000).length, length - place, 90);
}

TEST(SoundFiles, AreSilentWhenDamaged) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.WAV");
    const QByteArray wave = Wave(Tone(500, 1000));
    for (const auto& [bytes, samples] :
         {std::pair(QByteArray(), 0U), {wave.left(44), 0}, {wave.left(44 + 8820), 8820}}) {
        Write(path, bytes);
        EXPECT_EQ(LoadWave(path.toStdString()).size(), samples);
        EXPECT_FALSE(Mp3::Open(path.toStdString()));
    }
    QFile::remove(path);
    ASSERT_EQ(mkfifo(path.toLocal8Bit(), 0600), 0);
    for (const QString& file : {path, folder.path(), folder.filePath("missing")})
        EXPECT_TRUE(LoadWave(file.toStdString()).empty() && !Mp3::Open(file.toStdString()));
}

// The whole program in a folder of its own, with sounds that can be told from each other.
struct SoundingProgram : Recording {
    SoundingProgram() {
        QFile::link(PLUGIN, Path("luckycup-sound.so"));
        AddMusic("BGMusic/SONG01.mp3", Tone(500, 2500));
        AddMusic("BGMusic/SONG02.mp3", Tone(1000, 2000));
        AddEffect("rollAll", 3000, 300);
        program->game.settings.BGMusicEnabled = true;
        program->game.settings.BGMusicVolume = 500;
        program->game.settings.ConfirmOnExit = false;
        answerer.callOnTimeout([] {
            if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
        });
        answerer.start(20);
    }
    std::string Send(const std::string& command) override { return program->sound.Send(command); }

    Art art;
    std::unique_ptr<Program> program = std::make_unique<Program>(FilesInOneFolder(Folder()), art);
    QTimer answerer;
};

TEST(SoundingProgram, MusicPausesWithTheWindowAndARollIsHeard) {
    SoundingProgram t;
    t.program->ShowMainWindow();
    EXPECT_FALSE(Read("/proc/self/maps").contains("luckycup-sound")) << "a start pays for no sound";
    ASSERT_TRUE(t.Reaches("myMP3", 200));
    t.program->window.showMinimized();
    const int place = t.Status("myMP3 position");
    QTest::qWait(600);
    EXPECT_EQ(t.Status("myMP3 position"), place);
    t.program->window.showNormal();
    t.program->gate.Run([&] { picRollDices_MouseUp(t.program->game); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(t.Status("myMP3 length") - 2000) < 99; }, 4000));
    t.program->window.close();
    t.program.reset();
    const auto song = t.Listen(500), roll = t.Listen(3000);
    EXPECT_NEAR(song.length, 2500, 100);
    EXPECT_NEAR(song.level, 0.5, 0.05);
    EXPECT_NEAR(roll.length, 300, 30);
    EXPECT_NEAR(roll.level, 1, 0.05);
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
