#include "model/FlowLoops.h"

#include "support/Text.h"

namespace wxbrg {

std::int32_t FlowLoops::NodeOf(std::string_view guid) {
    const auto [node, isNew] =
        nodeByGuid_.try_emplace(std::string(guid), static_cast<std::int32_t>(nodes_.size()));
    if (isNew) {
        const auto [folded, isNewClass] =
            classByFoldedGuid_.try_emplace(UpperCase(guid), static_cast<std::int32_t>(metInWalk_.size()));
        if (isNewClass) metInWalk_.push_back(0);
        nodes_.push_back({{}, folded->second});
    }
    return node->second;
}

void FlowLoops::Add(std::string_view from, std::string_view to) {
    const std::int32_t source = NodeOf(from);
    const std::int32_t target = NodeOf(to);
    nodes_[static_cast<std::size_t>(source)].targets.push_back(target);
}

std::int32_t FlowLoops::NextUnmet(std::int32_t node, std::size_t& next) {
    const std::vector<std::int32_t>& targets = nodes_[static_cast<std::size_t>(node)].targets;
    while (next < targets.size()) {
        const std::int32_t target = targets[next++];
        std::uint32_t& met =
            metInWalk_[static_cast<std::size_t>(nodes_[static_cast<std::size_t>(target)].visitedClass)];
        lastTestFound_ = met == walk_;
        if (lastTestFound_) continue;
        met = walk_;
        return target;
    }
    return -1;
}

bool FlowLoops::ClosesLoop(std::string_view from, std::string_view to) {
    lastTestFound_ = false;
    if (from == to) return false;
    struct Level {
        std::int32_t node;
        std::size_t next;
    };
    const std::int32_t wanted = NodeOf(from);
    const std::int32_t start = NodeOf(to);
    ++walk_;
    metInWalk_[static_cast<std::size_t>(nodes_[static_cast<std::size_t>(start)].visitedClass)] = walk_;
    std::vector<Level> levels{{start, 0}};
    while (!levels.empty()) {
        const std::int32_t target = NextUnmet(levels.back().node, levels.back().next);
        if (target >= 0) {
            levels.push_back({target, 0});
            continue;
        }
        // A level is compared when the walk behind it is done.
        if (levels.back().node == wanted) return true;
        levels.pop_back();
    }
    return false;
}

}  // namespace wxbrg
