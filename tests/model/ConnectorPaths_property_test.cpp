// What control connectors take from their paths, against the paths listed one by one.

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "mapping/NameConversion.h"
#include "mapping/RuleLookups.h"
#include "model/clsACTIVITY.h"
#include "model/clsCONTROL_CONNECTOR.h"
#include "model/clsPROCESS.h"
#include "model/modCONTROL_CONNECTOR.h"
#include "model/modPoint.h"
#include "tests/fixture/CoreTest.h"
#include "tests/fixture/RandomChoices.h"

namespace wxbrg::test {
namespace {

/// The objects between the ends of a path.
using Objects = std::vector<ARISObjDef>;

/// What a connector takes from its paths, and the notes on the way.
struct Taken {
    std::string condition;
    std::string description;
    std::string layout;
    std::vector<std::string> notes;

    friend bool operator==(const Taken&, const Taken&) = default;
    friend void PrintTo(const Taken& taken, std::ostream* stream) {
        *stream << "condition " << taken.condition << "\ndescription " << taken.description << "\nlayout "
                << taken.layout << "\nnotes " << testing::PrintToString(taken.notes);
    }
};

class ConnectorPathsPropertyTest : public CoreTest, protected RandomChoices<20260106> {
  protected:
    std::string OneOf(const std::vector<std::string>& choices) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
    }

    /// An event or rule object, most of which have nothing to say.
    Ref<FakeObject> ObjectBetween(const std::string& name) {
        const Ref<FakeObject> object = OneIn(2) ? Event(name, Below(3000), Below(3000))
                                                : RuleObject(name, andRuleSymbol, Below(3000), Below(3000));
        if (OneIn(12)) object->Set(9, "about " + name);
        if (object->TypeNum() != ObjectType::event || !OneIn(3)) return object;
        object->Set(497, OneOf({"=", "!=", "", "  "}));
        object->Set(498, OneOf({"1", "open", ""}));
        if (OneIn(4)) object->Set(985, "typed " + name);
        for (int count = Below(3); count > 0; --count)
            repository.Connect(Drawn(ObjectType::ermAttribute, OneOf({"x", "y.z", "a b"})), 75, object);
        return object;
    }

    /// A process of two functions, joined over a few layers of objects.
    void MakeModel() {
        gBlock.gColPROCESS = {};
        model = repository.Model(processType, "Orders", group);
        objects.clear();
        std::vector<std::vector<Ref<FakeObject>>> layers{{Function("start", 0, 0)}};
        for (int layer = 1 + Below(5); layer > 0; --layer) {
            layers.emplace_back();
            for (int i = 1 + Below(3); i > 0; --i) {
                const std::string name = "o" + std::to_string(objects.size());
                layers.back().push_back(ObjectBetween(name));
                objects[name] = layers.back().back();
            }
        }
        layers.push_back({Function("target", 2000, 1000)});
        for (std::size_t layer = 1; layer < layers.size(); ++layer)
            for (const Ref<FakeObject>& to : layers[layer]) {
                for (const Ref<FakeObject>& from : layers[layer - 1]) Join(from, to);
                if (layer > 1 && OneIn(4)) Join(layers[layer - 2].front(), to);
            }
    }
    void Join(const Ref<FakeObject>& from, const Ref<FakeObject>& to) {
        const bool events = from->TypeNum() == ObjectType::event && to->TypeNum() == ObjectType::event;
        if (!events && !OneIn(8)) Flow({from, to});
    }

    std::vector<Objects> PathsOf(const clsCONTROL_CONNECTOR& connector) const {
        std::vector<Objects> paths;
        for (const std::string& text : PathTexts(connector.ColPath)) {
            paths.emplace_back();
            constexpr std::string_view separator = " > ";
            for (std::size_t at = text.find(separator); at != std::string::npos;) {
                const std::size_t next = text.find(separator, at + 1);
                if (next == std::string::npos) break;
                const std::size_t name = at + separator.size();
                paths.back().push_back(objects.at(text.substr(name, next - name)));
                at = next;
            }
        }
        return paths;
    }

    static std::string PlainCondition(clsCONTROL_CONNECTOR& connector, const std::vector<Objects>& paths) {
        std::string result;
        std::string ofPath;
        int count = 0;
        for (const Objects& path : paths) {
            bool hasCondition = false;
            for (const ARISObjDef& object : path) {
                std::string condition;
                if (gBlock.gOptTransitionConditions)
                    condition = connector.GetProperty_Condition("CONTROL_CONNECTOR_CONDITION", object);
                if (condition.empty())
                    condition = connector.GetProperty_Condition("EVENT_IS_COMPARED_WITH_DATA", object);
                if (condition.empty()) continue;
                ofPath = hasCondition ? ofPath + " AND " + condition : condition;
                hasCondition = true;
            }
            if (hasCondition) ++count;
            if (count > 1)
                result += " OR " + ofPath;
            else if (hasCondition)
                result = ofPath;
        }
        return result;
    }

    static std::string PlainDescription(const std::vector<Objects>& paths) {
        std::string lines;
        for (const Objects& path : paths)
            for (const ARISObjDef& object : path) {
                const std::string text =
                    Find_ARIS_ObjDef_Attribute_Using_Mapping_Rule(object, "CONTROL_CONNECTOR_DESCRIPTION");
                if (!text.empty())
                    lines += "\r\n\t\t\t" + std::string(object->Type()) + " '" + object->Name(english) +
                             "' " + text;
            }
        return lines.empty() ? std::string() : "'" + ConvertARISName(lines, NameKind::description, "") + "'";
    }

    static std::string PlainLayout(const clsCONTROL_CONNECTOR& connector, const std::vector<Objects>& paths) {
        const auto first = std::find_if(paths.begin(), paths.end(), [](const Objects& path) {
            return !path.empty();
        });
        if (first == paths.end()) return {};
        Collection<ARISObjDef> all;
        all.Add(connector.FROM_ARISObjectDefinition);
        for (const ARISObjDef& object : *first) all.Add(object);
        all.Add(connector.TO_ARISObjectDefinition);
        const clsPoint point = CalculateGraphicalCenterOfARISObjects(all, *connector.PROCESS).value();
        return "XPOS " + std::to_string(point.XPos) + " YPOS " + std::to_string(point.YPos);
    }

    Taken PlainlyTaken(clsCONTROL_CONNECTOR& connector) {
        ForgetNotes();
        const std::vector<Objects> paths = PathsOf(connector);
        Taken taken;
        taken.description = PlainDescription(paths);
        taken.condition = PlainCondition(connector, paths);
        taken.layout = PlainLayout(connector, paths);
        taken.notes = Notes();
        return taken;
    }
    Taken TakenBy(clsCONTROL_CONNECTOR& connector) {
        ForgetNotes();
        connector.SetupProperty_DESCRIPTION();
        connector.SetupProperty_Condition();
        connector.SetupProperty_LAYOUT();
        return {connector.Condition, connector.DESCRIPTION, connector.LAYOUT, Notes()};
    }
    std::map<std::string, ARISObjDef> objects;  ///< those between the functions, by name
};

TEST_F(ConnectorPathsPropertyTest, ConditionDescriptionBendPointAndNotesAreThoseOfThePathsOneByOne) {
    int repeated = 0;
    int described = 0;
    int notedAlone = 0;
    for (int round = 0; round < 1500 && !HasFailure(); ++round) {
        MakeModel();
        gBlock.gOptTransitionConditions = OneIn(3);
        const Ref<clsPROCESS> process = ProcessWithActivities();
        CONTROL_CONNECTOR_Find_ARIS_Mapping(*process);
        if (process->Col_CONTROL_CONNECTOR.IsEmpty()) continue;
        clsCONTROL_CONNECTOR& connector = *process->Col_CONTROL_CONNECTOR.Item(1);
        const Taken expected = PlainlyTaken(connector);
        EXPECT_EQ(TakenBy(connector), expected) << "round " << round;
        repeated += expected.condition.find(" OR ") != std::string::npos ? 1 : 0;
        described += expected.description.empty() ? 0 : 1;
        notedAlone += expected.condition.empty() && !expected.notes.empty() ? 1 : 0;
    }
    EXPECT_GT(repeated, 100);
    EXPECT_GT(described, 100);
    EXPECT_GT(notedAlone, 50);
}

}  // namespace
}  // namespace wxbrg::test
