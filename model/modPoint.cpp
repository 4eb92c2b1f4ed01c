#include "model/modPoint.h"

#include <cstdlib>
#include <vector>

#include "model/WindowLayout.h"
#include "model/clsPROCESS.h"
#include "run/Frame.h"
#include "support/Numbers.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// Draws a coordinate that lies outside the window back to its edge. The most negative 16-bit number has no
/// absolute value: failure 6.
std::int16_t DrawnBack(std::int16_t coordinate) {
    constexpr std::int16_t limit = windowSize / 2 - windowEdge;
    const auto distance = NarrowTo<std::int16_t>(std::abs(int{coordinate}));
    if (distance <= limit) return coordinate;
    return static_cast<std::int16_t>(coordinate < 0 ? -limit : limit);
}

/// The mean of `count` - 1 coordinates goes on to the mean of `count`.
std::int16_t NextMean(std::int16_t mean, std::int16_t coordinate, std::int16_t count) {
    const auto share = FloorTo<std::int32_t>(coordinate / static_cast<double>(count));
    const double weight = (count - 1) / static_cast<double>(count);
    return NarrowTo<std::int16_t>(share + FloorTo<std::int32_t>(weight * mean));
}

}  // namespace

std::string PositionText(std::int32_t x, std::int32_t y) {
    return "XPOS " + std::to_string(x) + " YPOS " + std::to_string(y);
}

std::optional<clsPoint> CalculateGraphicalCenterOfARISObjects(const Collection<ARISObjDef>& ColARISObjDef,
                                                              const clsPROCESS& Process) {
    return Procedure(
        "modPoint.CalculateGraphicalCenterOfARISObjects", [&](Frame&) -> std::optional<clsPoint> {
            if (ColARISObjDef.IsEmpty()) return std::nullopt;
            std::int16_t centerX = 0;
            std::int16_t centerY = 0;
            std::int16_t count = 1;
            for (const ARISObjDef& object : ColARISObjDef) {
                const ARISObjOccList occurrences = object->OccListInModel(Process.ARIS_Model);
                if (occurrences.Count() == 0) continue;
                const ARISObjOcc first = occurrences.Get(0);
                const std::int16_t x = DrawnBack(FloorTo<std::int16_t>(Process.WindowX(first->X())));
                const std::int16_t y = DrawnBack(FloorTo<std::int16_t>(Process.WindowY(first->Y())));
                centerX = NextMean(centerX, x, count);
                centerY = NextMean(centerY, y, count);
                count = NarrowTo<std::int16_t>(count + 1);
            }
            return clsPoint{centerX, centerY};
        });
}

void AddBendPoint(Frame& frame, std::string& layout, const PathCollection& paths, bool pathsAvailable,
                  const ARISObjDef& from, const ARISObjDef& to, const clsPROCESS& process) {
    if (!pathsAvailable) {
        frame.Raise(Message::connectorPathsNotKnown);
        return;
    }
    if (!process.LayoutConversionFinished) {
        frame.Raise(Message::modelLayoutNotConverted, process.ARIS_Model->Name(gBlock.gLocale));
        return;
    }
    const std::vector<ARISObjDef> between = paths.FirstObjectsBetween();
    if (between.empty()) return;
    Collection<ARISObjDef> objects;
    objects.Add(from);
    for (const ARISObjDef& object : between) objects.Add(object);
    objects.Add(to);
    const std::optional<clsPoint> point = CalculateGraphicalCenterOfARISObjects(objects, process);
    layout = TrimLeft(layout + " " + PositionText(point->XPos, point->YPos));
}

}  // namespace wxbrg
