#pragma once

#include <string>

class MediaService {
public:
    virtual ~MediaService() = default;
    // Carries out one command. Answers a status query with its text and everything else, failures included, with "".
    virtual std::string Send(const std::string& command) = 0;
};
