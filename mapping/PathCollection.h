#pragma once

#include <string_view>
#include <vector>

#include "aris/Repository.h"
#include "mapping/clsPath.h"
#include "support/Ref.h"

namespace wxbrg {

/// Paths in their order, repetitions included. Chains that part and meet multiply the paths; what these have
/// in common is kept once, so that the collection takes up the room of the chains and not of the paths.
class PathCollection {
  public:
    /// A path, or all paths that begin as it does.
    struct Entry {
        Ref<clsPath> head;
        /// The ways to go on from the head's end, at least one; empty where the head is the whole path.
        Ref<const PathCollection> tails;
    };

    void Add(const Ref<clsPath>& path) { entries_.push_back({path, nullptr}); }
    void Add(const Entry& entry) { entries_.push_back(entry); }

    bool IsEmpty() const { return entries_.empty(); }
    std::vector<Entry>::const_iterator begin() const { return entries_.begin(); }
    std::vector<Entry>::const_iterator end() const { return entries_.end(); }

    /// Whether some path holds an object between its ends. Cost: linear in the chains.
    bool SomePassThrough(std::string_view guid) const;
    /// Whether every path holds an object between its ends. Cost: linear in the chains.
    bool AllPassThrough(std::string_view guid) const;
    /// The objects between the ends of the first path that has any; empty where none has.
    std::vector<ARISObjDef> FirstObjectsBetween() const;

  private:
    std::vector<Entry> entries_;
};

/// What takes in the objects between the ends of many paths, path by path.
class PathReader {
  public:
    virtual ~PathReader() = default;
    /// Takes in the next object of a path. False: it said nothing, had no effect, and would not another time.
    virtual bool Read(const ARISObjDef& object) = 0;
    /// The path has ended.
    virtual void EndPath() = 0;
    /// Whether the end of a path on which no object says anything has an effect at this moment.
    virtual bool HeedsSilentPaths() const = 0;
};

/// Hands a reader all paths with their objects in order, but for what has no effect: objects that said
/// nothing the first time, and paths with nothing else.
///
/// Cost: linear in the chains, plus the paths with something to say and their length.
void ReadPaths(const PathCollection& paths, PathReader& reader);

}  // namespace wxbrg
