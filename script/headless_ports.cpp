#include "script/headless_ports.h"

namespace {

template <typename T>
T TakeFront(std::deque<T>& queue) {
    T front = std::move(queue.front());
    queue.pop_front();
    return front;
}

}  // namespace

void HeadlessClock::Wait(int ms) { log_.push_back("sleep " + std::to_string(ms)); }

double HeadlessRandom::Next() {
    constexpr double scale = 1.0 / (std::uint64_t{1} << 53);
    state = state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<double>(state >> 11) * scale;
}

int HeadlessRandom::DrawDie() { return faces.empty() ? RandomSource::DrawDie() : TakeFront(faces); }

void HeadlessEffects::PlayEffect(std::string_view name) { log_.push_back("effect " + std::string(name)); }

void HeadlessEffects::PlayEffectWait(std::string_view name) { log_.push_back("effect-wait " + std::string(name)); }

std::string HeadlessMedia::Send(const std::string& command) {
    log_.push_back("media " + command);
    if (!command.starts_with("status") || answers.empty()) return {};
    return TakeFront(answers);
}

int HeadlessScores::Record(int number, const ScoreRecord& record) {
    const std::string file = std::to_string(number);
    try {
        const int position = scores_->Record(number, record);
        log_.push_back("record " + file + '|' + std::to_string(record.Score) + '|' + record.PlayerName + '|' +
                       std::to_string(position));
        return position;
    } catch (const ScoreFileError&) {
        log_.push_back("record-failed " + file);
        throw;
    }
}

void HeadlessStore::SaveSettings(const GameSettings& settings) {
    saved_ = settings;
    log_.push_back("save");
}
