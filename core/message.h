#pragma once

#include <string>

enum class MessageIcon { Question, Warning, Stop, Information };
enum class MessageButtons { Ok, OkCancel };
enum class Answer { Ok = 1, Cancel = 2 };

struct Message {
    std::string title;
    std::string text;
    MessageIcon icon;
    MessageButtons buttons;
};
