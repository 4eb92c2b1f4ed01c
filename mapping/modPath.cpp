#include "mapping/modPath.h"

#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

/// `head` and `tail` in one, the object where they meet between them.
Ref<clsPath> Join(const clsPath& head, const clsPath& tail) {
    const Ref<clsPath> joined = gPool.Create<clsPath>();
    joined->FROM_ARISObjectDefinition = head.FROM_ARISObjectDefinition;
    joined->TO_ARISObjectDefinition = tail.TO_ARISObjectDefinition;
    Collection<ARISObjDef>& between = joined->ColARISObjectDefinitionsOnPath;
    for (const ARISObjDef& object : head.ColARISObjectDefinitionsOnPath) between.Add(object, object->Guid());
    const ARISObjDef& joint = head.TO_ARISObjectDefinition;
    between.Add(joint, joint->Guid());
    for (const ARISObjDef& object : tail.ColARISObjectDefinitionsOnPath) between.Add(object, object->Guid());
    return joined;
}

}  // namespace

Ref<clsPath> CreatePath(const ARISObjDef& fromObj, const ARISObjDef& toObj) {
    return Procedure("modPath.CreatePath", [&](Frame&) {
        const Ref<clsPath> path = gPool.Create<clsPath>();
        path->FROM_ARISObjectDefinition = fromObj;
        path->TO_ARISObjectDefinition = toObj;
        return path;
    });
}

Collection<Ref<clsPath>> ClonePaths(const Collection<Ref<clsPath>>& paths) {
    return Procedure("modPath.ClonePaths", [&](Frame&) {
        Collection<Ref<clsPath>> clone;
        for (const Ref<clsPath>& path : paths) clone.Add(path);
        return clone;
    });
}

Collection<Ref<clsPath>> ConcatenatePaths(const Collection<Ref<clsPath>>& first,
                                          const Collection<Ref<clsPath>>& second) {
    return Procedure("modPath.ConcatenatePaths", [&](Frame&) {
        if (first.IsEmpty() || second.IsEmpty()) return ClonePaths(first.IsEmpty() ? second : first);
        Collection<Ref<clsPath>> joined;
        for (const Ref<clsPath>& head : first)
            for (const Ref<clsPath>& tail : second)
                if (head->TO_ARISObjectDefinition->Guid() == tail->FROM_ARISObjectDefinition->Guid())
                    joined.Add(Join(*head, *tail));
        return joined;
    });
}

}  // namespace wxbrg
