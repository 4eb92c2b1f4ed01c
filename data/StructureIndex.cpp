#include "data/StructureIndex.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "data/clsDATA_MEMBER.h"
#include "run/modGlobals.h"

namespace wxbrg {

namespace {

/// The object that a member stands for in a comparison; empty where it matches nothing.
ARISObjDef ComparedObject(const clsDATA_MEMBER& member) {
    if (!member.IsDataStructure) return member.ARISObjectDefinition;
    return member.DATA_STRUCTURE->IsGenerated ? ARISObjDef() : member.DATA_STRUCTURE->ARISObjectDefinition;
}

bool Matches(const Ref<clsDATA_MEMBER>& member, const ARISObjDef& object) {
    const ARISObjDef compared = ComparedObject(*member);
    return compared && compared->Guid() == object->Guid();
}

bool HasTheseMembers(const clsDATA_STRUCTURE& structure, const Collection<ARISObjDef>& objects) {
    const Collection<Ref<clsDATA_MEMBER>>& members = structure.ColDATA_MEMBER;
    if (members.Count() != objects.Count()) return false;
    for (const ARISObjDef& object : objects)
        if (std::none_of(members.begin(), members.end(), [&](const auto& member) {
                return Matches(member, object);
            }))
            return false;
    for (const Ref<clsDATA_MEMBER>& member : members)
        if (std::none_of(objects.begin(), objects.end(), [&](const auto& object) {
                return Matches(member, object);
            }))
            return false;
    return true;
}

/// One text for a set of objects: their number, and their Guids in order with their lengths.
std::string Signature(std::vector<std::string_view> guids) {
    std::string signature = std::to_string(guids.size());
    std::sort(guids.begin(), guids.end());
    guids.erase(std::unique(guids.begin(), guids.end()), guids.end());
    for (const std::string_view guid : guids)
        signature.append("/").append(std::to_string(guid.size())).append(":").append(guid);
    return signature;
}

}  // namespace

Ref<clsDATA_STRUCTURE> StructureIndex::FindByWalk(const Collection<ARISObjDef>& members,
                                                  const ARISObjDef& object) {
    for (const Ref<clsDATA_STRUCTURE>& structure : gBlock.gColDATA_STRUCTURE) {
        if (object && !structure->IsGenerated && structure->ARISObjectDefinition->Guid() != object->Guid())
            return nullptr;
        if (HasTheseMembers(*structure, members)) return structure;
    }
    return nullptr;
}

void StructureIndex::ReadRegistry() {
    while (read_ < gBlock.gColDATA_STRUCTURE.Count()) {
        const Ref<clsDATA_STRUCTURE> structure = gBlock.gColDATA_STRUCTURE.Item(++read_);
        positionOf_.emplace(structure.Get(), read_);
        if (structure->IsGenerated || secondMapped_ != 0) continue;
        (firstMapped_ == 0 ? firstMapped_ : secondMapped_) = read_;
    }
}

void StructureIndex::AddFilled(const clsDATA_STRUCTURE& structure) {
    ReadRegistry();
    std::vector<std::string_view> guids;
    for (const Ref<clsDATA_MEMBER>& member : structure.ColDATA_MEMBER) {
        if (!member) {
            holdsItself_ = true;
            return;
        }
        const ARISObjDef compared = ComparedObject(*member);
        if (!compared) return;
        guids.push_back(compared->Guid());
    }
    const auto position = positionOf_.find(&structure);
    if (position == positionOf_.end()) return;
    const auto [known, isNew] = positionByMembers_.try_emplace(Signature(std::move(guids)), position->second);
    if (!isNew) known->second = std::min(known->second, position->second);
}

std::int32_t StructureIndex::FirstMappedOther(const ARISObjDef& object) {
    constexpr std::int32_t beyond = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t position : {firstMapped_, secondMapped_}) {
        if (position == 0) return beyond;
        if (gBlock.gColDATA_STRUCTURE.Item(position)->ARISObjectDefinition->Guid() != object->Guid())
            return position;
    }
    return beyond;
}

Ref<clsDATA_STRUCTURE> StructureIndex::Find(const Collection<ARISObjDef>& members, const ARISObjDef& object) {
    if (holdsItself_) return FindByWalk(members, object);
    ReadRegistry();
    std::vector<std::string_view> guids;
    for (const ARISObjDef& member : members) guids.push_back(member->Guid());
    const auto found = positionByMembers_.find(Signature(std::move(guids)));
    if (found == positionByMembers_.end()) return nullptr;
    if (object && FirstMappedOther(object) <= found->second) return nullptr;
    return gBlock.gColDATA_STRUCTURE.Item(found->second);
}

}  // namespace wxbrg
