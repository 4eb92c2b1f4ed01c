#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wxbrg {

/// The connectors of a process as a graph of its objects, to find out whether a new connector closes a
/// circle. Connectors are added in the order of their creation, each after its own test.
///
/// Cost of a test: linear in the connectors that its walk meets, without recursion.
class FlowLoops {
  public:
    /// Adds a connector between two objects, by their Guids.
    void Add(std::string_view from, std::string_view to);

    /// Whether a walk along the connectors from `to` comes to `from`. A connector from an object to itself
    /// closes no circle, and no walk goes through one. An object is met once in a walk, and Guids that differ
    /// in case alone count as met together.
    bool ClosesLoop(std::string_view from, std::string_view to);

    /// Whether the last test for an object that was met already, in the walk that `ClosesLoop` made, found
    /// one; false as well where there was no test.
    bool LastTestFound() const { return lastTestFound_; }

  private:
    struct Node {
        std::vector<std::int32_t> targets;  ///< nodes, in the order of the connectors
        std::int32_t visitedClass;          ///< nodes whose Guids differ in case alone share one
    };
    std::int32_t NodeOf(std::string_view guid);
    /// The first target of a node, from `next` on, that has not been met; -1 where there is none.
    std::int32_t NextUnmet(std::int32_t node, std::size_t& next);

    std::vector<Node> nodes_;
    std::unordered_map<std::string, std::int32_t> nodeByGuid_;
    std::unordered_map<std::string, std::int32_t> classByFoldedGuid_;
    std::vector<std::uint32_t> metInWalk_;  ///< by class: the walk in which it was met last
    std::uint32_t walk_ = 0;
    bool lastTestFound_ = false;
};

}  // namespace wxbrg
