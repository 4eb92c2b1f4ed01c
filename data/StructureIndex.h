#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "aris/Repository.h"
#include "data/clsDATA_STRUCTURE.h"
#include "support/Collection.h"

namespace wxbrg {

/// Finds structures by their members without a walk over all of them. It follows the registry of structures,
/// in which entries are only ever appended and filled once.
class StructureIndex {
  public:
    /// Takes in a structure whose members have just been declared.
    void AddFilled(const clsDATA_STRUCTURE& structure);

    /// What `DATA_STRUCTURE_FindEquivalentStructure` answers.
    Ref<clsDATA_STRUCTURE> Find(const Collection<ARISObjDef>& members, const ARISObjDef& object);

    /// The same by a walk over all structures, which is how the answer is defined.
    static Ref<clsDATA_STRUCTURE> FindByWalk(const Collection<ARISObjDef>& members, const ARISObjDef& object);

  private:
    /// Position of the first mapped structure of another object than the given one; beyond all structures
    /// where there is none.
    std::int32_t FirstMappedOther(const ARISObjDef& object);
    void ReadRegistry();

    std::unordered_map<std::string, std::int32_t> positionByMembers_;
    std::unordered_map<const clsDATA_STRUCTURE*, std::int32_t> positionOf_;
    std::int32_t read_ = 0;         ///< how many entries of the registry have been read
    std::int32_t firstMapped_ = 0;  ///< positions of the first two mapped structures; 0: none
    std::int32_t secondMapped_ = 0;
    bool holdsItself_ = false;  ///< some structure has an empty entry among its members
};

}  // namespace wxbrg
