#pragma once

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

#include "table/box_mark.h"
#include "table/presses.h"

using MarkWay = std::pair<Box, std::deque<Direction>>;

// From each open box from which the mark can be led to this one, the shortest way; the box itself comes first.
inline std::vector<MarkWay> WaysTo(const Game& game, const Box& wanted) {
    constexpr std::array directions{Direction::Left, Direction::Right, Direction::Up, Direction::Down};
    std::vector<MarkWay> ways{{wanted, {}}};
    const auto known = [&](const Box& box) { return std::ranges::count(ways, box, &MarkWay::first) > 0; };
    for (std::size_t i = 0; i < ways.size(); ++i) {
        for (int place = 0; place < boxCount; ++place) {
            const Box box{allColumns[static_cast<std::size_t>(place / rowCount)], place % rowCount};
            if (!BoxOpen(game, box.column, box.row) || known(box)) continue;
            for (Direction step : directions) {
                if (NextOpenBox(game, box, step) != ways[i].first || known(box)) continue;
                std::deque<Direction> way = ways[i].second;
                way.push_front(step);
                ways.emplace_back(box, std::move(way));
            }
        }
    }
    return ways;
}
