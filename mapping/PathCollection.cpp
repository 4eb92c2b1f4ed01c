#include "mapping/PathCollection.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "support/Text.h"

namespace wxbrg {

namespace {

/// Whether an entry holds an object on its own, in front of its tails.
bool HeadPassesThrough(const PathCollection::Entry& entry, std::string_view guid) {
    return entry.head->ColARISObjectDefinitionsOnPath.Find(guid) != nullptr ||
           (entry.tails && UpperCase(entry.head->TO_ARISObjectDefinition->Guid()) == UpperCase(guid));
}

/// Asks for one object on the paths of a collection and of those that it leads on to, each collection once.
class PassageTest {
  public:
    explicit PassageTest(std::string_view guid) : guid_(guid) {}

    bool Some(const PathCollection& paths) {
        return Known(paths, [&](const PathCollection::Entry& entry) {
            return HeadPassesThrough(entry, guid_) || (entry.tails && Some(*entry.tails));
        });
    }

    bool All(const PathCollection& paths) {
        return !Known(paths, [&](const PathCollection::Entry& entry) {
            return !HeadPassesThrough(entry, guid_) && (!entry.tails || !All(*entry.tails));
        });
    }

  private:
    /// Whether the test holds for some entry; asked once for each collection.
    template <class Test>
    bool Known(const PathCollection& paths, Test&& test) {
        const auto known = known_.find(&paths);
        if (known != known_.end()) return known->second;
        const bool holds = std::any_of(paths.begin(), paths.end(), test);
        known_.emplace(&paths, holds);
        return holds;
    }

    std::string_view guid_;
    std::unordered_map<const PathCollection*, bool> known_;
};

/// One walk over all paths for a reader.
class PathWalk {
  public:
    explicit PathWalk(PathReader& reader) : reader_(reader) {}

    void Walk(const PathCollection& paths) {
        for (const PathCollection::Entry& entry : paths) {
            if (IsSilent(entry) && BetweenIsSilent() && !reader_.HeedsSilentPaths()) continue;
            const std::size_t mark = between_.size();
            for (const ARISObjDef& object : entry.head->ColARISObjectDefinitionsOnPath)
                between_.push_back(object);
            if (entry.tails) {
                between_.push_back(entry.head->TO_ARISObjectDefinition);
                Walk(*entry.tails);
            } else {
                ReadPath();
            }
            between_.resize(mark);
        }
    }

  private:
    void ReadPath() {
        for (const ARISObjDef& object : between_)
            if (!IsSilent(object) && !reader_.Read(object)) silentObjects_.insert(object->Guid());
        reader_.EndPath();
    }

    bool IsSilent(const ARISObjDef& object) const { return silentObjects_.contains(object->Guid()); }

    bool BetweenIsSilent() const {
        return std::all_of(between_.begin(), between_.end(), [&](const ARISObjDef& object) {
            return IsSilent(object);
        });
    }

    bool IsSilent(const PathCollection::Entry& entry) {
        for (const ARISObjDef& object : entry.head->ColARISObjectDefinitionsOnPath)
            if (!IsSilent(object)) return false;
        return !entry.tails || (IsSilent(entry.head->TO_ARISObjectDefinition) && IsSilent(*entry.tails));
    }

    bool IsSilent(const PathCollection& paths) {
        if (silentPaths_.contains(&paths)) return true;
        const bool silent = std::all_of(paths.begin(), paths.end(), [&](const PathCollection::Entry& entry) {
            return IsSilent(entry);
        });
        if (silent) silentPaths_.insert(&paths);
        return silent;
    }

    PathReader& reader_;
    std::vector<ARISObjDef> between_;  ///< the objects from the paths' start to where the walk is
    std::unordered_set<std::string_view> silentObjects_;
    std::unordered_set<const PathCollection*> silentPaths_;
};

}  // namespace

bool PathCollection::SomePassThrough(std::string_view guid) const {
    return PassageTest(guid).Some(*this);
}

bool PathCollection::AllPassThrough(std::string_view guid) const {
    return PassageTest(guid).All(*this);
}

std::vector<ARISObjDef> PathCollection::FirstObjectsBetween() const {
    std::vector<ARISObjDef> objects;
    const PathCollection* paths = this;
    while (paths != nullptr) {
        const auto first = std::find_if(paths->begin(), paths->end(), [&](const Entry& entry) {
            return !objects.empty() || entry.tails || !entry.head->ColARISObjectDefinitionsOnPath.IsEmpty();
        });
        if (first == paths->end()) break;
        for (const ARISObjDef& object : first->head->ColARISObjectDefinitionsOnPath)
            objects.push_back(object);
        if (first->tails) objects.push_back(first->head->TO_ARISObjectDefinition);
        paths = first->tails.Get();
    }
    return objects;
}

void ReadPaths(const PathCollection& paths, PathReader& reader) {
    PathWalk(reader).Walk(paths);
}

}  // namespace wxbrg
