#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/clsDATA_STRUCTURE.h"
#include "output/clsWPXWriter.h"
#include "run/Frame.h"
#include "support/Collection.h"
#include "support/Ref.h"

/// The forms that the sections of the definition file share.
namespace wxbrg {

/// The two containers behind a name: " ('A', 'B')". Fails with 91 for an empty one.
inline std::string ContainersText(const Ref<clsDATA_STRUCTURE>& input, const Ref<clsDATA_STRUCTURE>& output) {
    return " (" + input->ObjectName + ", " + output->ObjectName + ")";
}

/// The title of what is no section of its own.
inline constexpr std::string_view noTitle;

/// Writes each object of a collection behind the header of a section, if it has a title. `pass` goes on to
/// the writing of each. Returns how many objects there are, those too of which nothing is written.
template <class Object, class... Pass>
std::int32_t WriteEach(clsWPXWriter& writer, std::string_view procedure, std::string_view title,
                       const Collection<Ref<Object>>& objects,
                       void (clsWPXWriter::*write)(const Object&, Pass...), Pass... pass) {
    return Procedure(procedure, [&](Frame&) {
        if (!title.empty()) writer.WriteSectionHeader(title);
        for (const Ref<Object>& object : objects) (writer.*write)(*object, pass...);
        return objects.Count();
    });
}

}  // namespace wxbrg
