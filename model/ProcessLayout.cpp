// How a process and its activities are laid out in the process window.

#include <algorithm>

#include "data/clsDATA_CONNECTOR.h"
#include "model/WindowLayout.h"
#include "model/clsACTIVITY.h"
#include "model/clsPROCESS.h"
#include "run/Frame.h"
#include "support/Numbers.h"

namespace wxbrg {

void clsPROCESS::FindExtremes() {
    for (const Ref<clsACTIVITY>& activity : Col_ACTIVITY) {
        MinXPos = std::min(MinXPos, activity->ARIS_XPos);
        MinYPos = std::min(MinYPos, activity->ARIS_YPos);
        MaxXPos = std::max(MaxXPos, activity->ARIS_XPos);
        MaxYPos = std::max(MaxYPos, activity->ARIS_YPos);
    }
}

void clsPROCESS::ConvertARISLayoutToWPXLayout() {
    Procedure("clsPROCESS.ConvertARISLayoutToWPXLayout", [&](Frame&) {
        if (!Col_ACTIVITY.IsEmpty()) {
            FindExtremes();
            const auto xMargin = RoundTo<std::int32_t>(SubtractChecked(MaxXPos, MinXPos) * windowMargin);
            const auto yMargin = RoundTo<std::int32_t>(SubtractChecked(MaxYPos, MinYPos) * windowMargin);
            X_ContingencyOffset = SubtractChecked(MinXPos, xMargin);
            Y_ContingencyOffset = SubtractChecked(MinYPos, yMargin);
            const std::int32_t xExtent = AddChecked(SubtractChecked(MaxXPos, X_ContingencyOffset), xMargin);
            const std::int32_t yExtent = AddChecked(SubtractChecked(MaxYPos, Y_ContingencyOffset), yMargin);
            const std::int32_t largest = std::max(xExtent, yExtent);
            if (largest > windowSize) ShrinkFactor = static_cast<double>(windowSize) / largest;
            for (const Ref<clsACTIVITY>& activity : Col_ACTIVITY) {
                activity->WPX_XPos = FloorTo<std::int32_t>(WindowX(activity->ARIS_XPos));
                activity->WPX_YPos = FloorTo<std::int32_t>(WindowY(activity->ARIS_YPos));
                activity->LayoutConversionFinished = true;
            }
        }
        LayoutConversionFinished = true;
    });
}

double clsPROCESS::WindowX(std::int32_t x) const {
    return (x - AddChecked(MaxXPos, MinXPos) / 2.0) * ShrinkFactor;
}

double clsPROCESS::WindowY(std::int32_t y) const {
    return (AddChecked(MaxYPos, MinYPos) / 2.0 - y) * ShrinkFactor;
}

void clsPROCESS::PROCESS_SetupProperty_ACTIVITY_LAYOUT() {
    Procedure("clsPROCESS.PROCESS_SetupProperty_ACTIVITY_LAYOUT", [&](Frame&) {
        for (const Ref<clsACTIVITY>& activity : Col_ACTIVITY) activity->SetupProperty_LAYOUT();
    });
}

void clsPROCESS::SetupProperty_ProcessGraphicsSetting() {
    Procedure("clsPROCESS.SetupProperty_ProcessGraphicsSetting", [&](Frame&) {
        SetupProperty_WINDOW();
        SetupProperty_SOURCE();
        SetupProperty_SINK();
    });
}

void clsPROCESS::SetupProperty_WINDOW() {
    Procedure("clsPROCESS.SetupProperty_WINDOW", [&](Frame& frame) {
        const std::string size = std::to_string(windowSize);
        if (LayoutConversionFinished)
            WINDOW = "PAPERSIZE WIDTH " + size + " HEIGHT " + size;
        else
            frame.Raise(Message::modelLayoutNotConverted, ARIS_Model->Name(gBlock.gLocale));
    });
}

void clsPROCESS::CollectBoundaryLayouts(Frame& frame, DataConnectorKind kind,
                                        std::string clsDATA_CONNECTOR::*layout,
                                        Collection<std::string>& layouts) {
    if (!LayoutConversionFinished) {
        frame.Raise(Message::modelLayoutNotConverted, ARIS_Model->Name(gBlock.gLocale));
        return;
    }
    for (const Ref<clsDATA_CONNECTOR>& connector : Col_DATA_CONNECTOR)
        if (connector->ConnectorKind == kind) layouts.Add((*connector).*layout);
}

void clsPROCESS::SetupProperty_SOURCE() {
    Procedure("clsPROCESS.SetupProperty_SOURCE", [&](Frame& frame) {
        CollectBoundaryLayouts(frame, DataConnectorKind::processInput, &clsDATA_CONNECTOR::SOURCE_LAYOUT,
                               Col_SOURCE);
    });
}

void clsPROCESS::SetupProperty_SINK() {
    Procedure("clsPROCESS.SetupProperty_SINK", [&](Frame& frame) {
        CollectBoundaryLayouts(frame, DataConnectorKind::processOutput, &clsDATA_CONNECTOR::SINK_LAYOUT,
                               Col_SINK);
    });
}

}  // namespace wxbrg
