#include "mapping/modPath.h"

#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

/// Throws failure 457 where a path that goes on from a head would hold an object for the second time.
void RequireNew(const ARISObjDef& object, const PathCollection& tails) {
    if (tails.SomePassThrough(object->Guid())) throw Failure(FailureKind::duplicateKey);
}

PathCollection::Entry Join(const Ref<clsPath>& head, const Ref<const PathCollection>& tails) {
    const ARISObjDef& joint = head->TO_ARISObjectDefinition;
    if (head->ColARISObjectDefinitionsOnPath.Find(joint->Guid()) != nullptr)
        throw Failure(FailureKind::duplicateKey);
    for (const ARISObjDef& object : head->ColARISObjectDefinitionsOnPath) RequireNew(object, *tails);
    RequireNew(joint, *tails);
    return {head, tails};
}

/// Adds the ways of going on with `second` from the paths of one entry.
void AddJoined(PathCollection& joined, const PathCollection::Entry& first, const PathCollection& second) {
    const Ref<PathCollection> tails = gBlock.gPool.Create<PathCollection>();
    if (first.tails) {
        for (const PathCollection::Entry& tail : *first.tails) AddJoined(*tails, tail, second);
    } else {
        for (const PathCollection::Entry& tail : second)
            if (first.head->TO_ARISObjectDefinition->Guid() == tail.head->FROM_ARISObjectDefinition->Guid())
                tails->Add(tail);
    }
    if (!tails->IsEmpty()) joined.Add(Join(first.head, tails));
}

}  // namespace

Ref<clsPath> CreatePath(const ARISObjDef& fromObj, const ARISObjDef& toObj) {
    return Procedure("modPath.CreatePath", [&](Frame&) {
        const Ref<clsPath> path = gBlock.gPool.Create<clsPath>();
        path->FROM_ARISObjectDefinition = fromObj;
        path->TO_ARISObjectDefinition = toObj;
        return path;
    });
}

PathCollection ClonePaths(const PathCollection& paths) {
    return Procedure("modPath.ClonePaths", [&](Frame&) {
        return paths;
    });
}

PathCollection ConcatenatePaths(const PathCollection& first, const PathCollection& second) {
    return Procedure("modPath.ConcatenatePaths", [&](Frame&) {
        if (first.IsEmpty() || second.IsEmpty()) return ClonePaths(first.IsEmpty() ? second : first);
        PathCollection joined;
        for (const PathCollection::Entry& entry : first) AddJoined(joined, entry, second);
        return joined;
    });
}

// Bears the name of the procedure above, of which it is a part.
PathCollection::Entry ConcatenatePath(const Ref<clsPath>& head, const Ref<const PathCollection>& tails) {
    return Procedure("modPath.ConcatenatePaths", [&](Frame&) {
        return Join(head, tails);
    });
}

}  // namespace wxbrg
