// The last section: processes with their activities and connectors. Processes come in the order of their
// registry: batch by batch, those of the selected models first, then those that their activities start.

#include "data/clsDATA_CONNECTOR.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "output/Block.h"
#include "output/Sections.h"
#include "output/clsWPXWriter.h"
#include "run/Frame.h"
#include "run/modGlobals.h"

namespace wxbrg {

std::int32_t clsWPXWriter::WriteAllProcess() {
    return Procedure("clsWPXWriter.WriteAllProcess", [&](Frame&) {
        WriteSectionHeader("PROCESSES");
        std::int32_t count = 0;
        std::uint64_t done = 0;
        for (const Ref<clsPROCESS>& process : gBlock.gColPROCESS) {
            count += 1 + WriteProcess(*process);
            gBlock.gPlatform->progress.Report("writing processes", ++done,
                                              static_cast<std::uint64_t>(gBlock.gColPROCESS.Count()));
        }
        return count;
    });
}

std::int32_t clsWPXWriter::WriteProcess(const clsPROCESS& PROCESS) {
    return Procedure("clsWPXWriter.WriteProcess", [&](Frame&) {
        Block head(0, "PROCESS " + PROCESS.ProcessName +
                          ContainersText(PROCESS.InputContainer, PROCESS.OutputContainer));
        head.Line(1, "DESCRIPTION ", PROCESS.DESCRIPTION)
            .Line(1, "DOCUMENTATION ", PROCESS.DOCUMENTATION)
            .Line(1, "CATEGORY ", PROCESS.CATEGORY)
            .Line(1, "WINDOW ", PROCESS.WINDOW);
        for (const std::string& source : PROCESS.Col_SOURCE) head.Always(1, source);
        for (const std::string& sink : PROCESS.Col_SINK) head.Always(1, sink);
        WriteBlock(head.Line(1, "", PROCESS.OtherSettings));
        std::int32_t count = WriteAllActivity(PROCESS);
        count += WriteAllControlConnector(PROCESS);
        count += WriteAllDataConnector(PROCESS);
        WriteBlock(Block(0, "END " + PROCESS.ProcessName));
        return count;
    });
}

std::int32_t clsWPXWriter::WriteAllActivity(const clsPROCESS& PROCESS) {
    return WriteEach(*this, "clsWPXWriter.WriteAllActivity", noTitle, PROCESS.Col_ACTIVITY,
                     &clsWPXWriter::WriteActivity);
}

void clsWPXWriter::WriteActivity(const clsACTIVITY& ACTIVITY) {
    Procedure("clsWPXWriter.WriteActivity", [&](Frame&) {
        const bool runsProcess = ACTIVITY.Is_PROCESS_ACTIVITY();
        Block block(1, (runsProcess ? "PROCESS_ACTIVITY " : "PROGRAM_ACTIVITY ") + ACTIVITY.ActivityName +
                           ContainersText(ACTIVITY.InputContainer, ACTIVITY.OutputContainer));
        block.Line(2, "DESCRIPTION ", ACTIVITY.DESCRIPTION)
            .Line(2, "DOCUMENTATION ", ACTIVITY.DOCUMENTATION)
            .Line(2, "LAYOUT ", ACTIVITY.LAYOUT)
            .Always(2, "START ", ACTIVITY.StartMode + " WHEN " + ACTIVITY.StartCondition + " TRUE");
        if (!ACTIVITY.ExitCondition.empty())
            block.Always(2, "EXIT ", ACTIVITY.ExitMode + " WHEN '" + ACTIVITY.ExitCondition + "'");
        block.Line(2, "DONE_BY PERSON ", ACTIVITY.PERSON)
            .Line(2, "DONE_BY MEMBER OF ROLE ", ACTIVITY.MEMBER_OF_ROLE)
            .Line(2, "DONE_BY ORGANIZATION ", ACTIVITY.ORGANIZATION);
        if (runsProcess)
            block.Line(2, "PROCESS ", ACTIVITY.PROCESS);
        else
            block.Line(2, "PROGRAM ", ACTIVITY.PROGRAM);
        WriteBlock(block.Line(2, "", ACTIVITY.OtherSettings).Always(1, "END ", ACTIVITY.ActivityName));
    });
}

std::int32_t clsWPXWriter::WriteAllControlConnector(const clsPROCESS& PROCESS) {
    return WriteEach(*this, "clsWPXWriter.WriteAllControlConnector", noTitle, PROCESS.Col_CONTROL_CONNECTOR,
                     &clsWPXWriter::WriteControlConnector);
}

void clsWPXWriter::WriteControlConnector(const clsCONTROL_CONNECTOR& CONNECTOR) {
    Procedure("clsWPXWriter.WriteControlConnector", [&](Frame&) {
        // The language has no control connector from an activity to itself: it is counted and not written.
        if (CONNECTOR.IsLoopConnector()) return;
        Block block(1, "CONTROL");
        block.Line(2, "DESCRIPTION ", CONNECTOR.DESCRIPTION).Line(2, "", CONNECTOR.Linking);
        if (!CONNECTOR.Condition.empty()) block.Always(2, "WHEN '", CONNECTOR.Condition + "'");
        WriteBlock(block.Line(2, "LAYOUT ", CONNECTOR.LAYOUT));
    });
}

std::int32_t clsWPXWriter::WriteAllDataConnector(const clsPROCESS& PROCESS) {
    return WriteEach(*this, "clsWPXWriter.WriteAllDataConnector", noTitle, PROCESS.Col_DATA_CONNECTOR,
                     &clsWPXWriter::WriteDataConnector);
}

void clsWPXWriter::WriteDataConnector(const clsDATA_CONNECTOR& CONNECTOR) {
    // A data connector from an activity to itself is written: the language has LOOP for it.
    Procedure("clsWPXWriter.WriteDataConnector", [&](Frame&) {
        Block block(1, "DATA");
        block.Line(2, "DESCRIPTION ", CONNECTOR.DESCRIPTION).Line(2, "", CONNECTOR.Linking);
        for (const std::string& mapping : CONNECTOR.ColMapping) block.Always(2, mapping);
        WriteBlock(block.Line(2, "LAYOUT ", CONNECTOR.LAYOUT));
    });
}

}  // namespace wxbrg
