#include "sound/media_command.h"

#include <gtest/gtest.h>

namespace {
using enum MediaVerb;
using enum MediaAlias;

TEST(MediaCommand, EveryFormIsRead) {
    const std::pair<const char*, MediaCommand> cases[] = {
        {"open /my music/a type b.mp3 type MPEGVideo alias myMP3", {Open, myMP3, "/my music/a type b.mp3"}},
        {"open a type MPEGVideo alias x type MPEGVideo alias song", {Open, song, "a type MPEGVideo alias x"}},
        {"open \"/a b/c.mp3\" alias song", {Open, song, "/a b/c.mp3"}},
        {"open \"/x\" alias song/c\" alias myMP3", {Open, myMP3, "/x\" alias song/c"}},
        {"play myMP3", {Play, myMP3}},
        {"play song from 0", {PlayFromStart, song}},
        {"pause myMP3", {Pause, myMP3}},
        {"resume song", {Resume, song}},
        {"close song", {Close, song}},
        {"status myMP3 position", {Position, myMP3}},
        {"status song length", {Length, song}},
        {"setaudio myMP3 Volume to 0", {Volume, myMP3, "", 0}},
        {"setaudio myMP3 Volume to 517", {Volume, myMP3, "", 517}},
        {"setaudio song Volume to 1001", {Volume, song, "", 1000}},
        {"setaudio song Volume to 99999999999999", {Volume, song, "", 1000}},
        {"setaudio song Volume to -3", {Volume, song, "", 0}},
        {"setaudio song Volume to -99999999999999", {Volume, song, "", 0}},
    };
    for (const auto& [text, command] : cases) EXPECT_EQ(ParseMediaCommand(text), command) << text;
}

TEST(MediaCommand, EveryOtherTextIsNone) {
    for (const char* text : {"",
                             "open",
                             "open ",
                             "open \"",
                             "open \"a.mp3\"",
                             "open a.mp3",
                             "open a.mp3 alias song",
                             "open \"a\" alias x",
                             "open a type MPEGVideo alias",
                             "open a type MPEGVideo alias song now",
                             "open \"a\" type MPEGVideo alias song",
                             "play",
                             "play ",
                             "play Intro",
                             "play mymp3",
                             "play song from",
                             "play song from 5",
                             "play  song",
                             "Play song",
                             "pause",
                             "pause song from 0",
                             "close Intro",
                             "close songs",
                             "stop song",
                             "status song",
                             "status song mode",
                             "status position",
                             "setaudio song Volume to",
                             "setaudio song Volume to ",
                             "setaudio song Volume to x",
                             "setaudio song Volume to 5x",
                             "setaudio song volume to 5",
                             "setaudio Intro Volume to 5",
                             "seek song to 0"})
        EXPECT_EQ(ParseMediaCommand(text), std::nullopt) << text;
}

}  // namespace
