#include "tests/bench/AmlGenerator.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/bench/AmlWriter.h"

namespace wxbrg::bench {

namespace {

/// Models of one folder share their staff and programs: few enough models that none of these has more
/// connections than the lists of the export can count.
constexpr std::uint32_t modelsInFolder = 10;
constexpr std::uint32_t staffOfAKind = 4;
constexpr std::uint32_t blocksInColumn = 25;
constexpr std::uint32_t subProcessesOfModel = 3;
constexpr std::uint64_t embeddedBytesForFunction = 100;

struct Word {
    std::string_view german;
    std::string_view english;
};
constexpr std::array<Word, 6> verbs = {{{"prüfen", "Check"},
                                        {"anlegen", "Create"},
                                        {"ändern", "Change"},
                                        {"freigeben", "Release"},
                                        {"buchen", "Post"},
                                        {"löschen", "Delete"}}};
constexpr std::array<Word, 7> things = {{{"Auftrag", "order"},
                                         {"Rechnung", "invoice"},
                                         {"Lieferschein", "delivery note"},
                                         {"Angebot & Anlage", "offer & annex"},
                                         {"Vertrag", "contract"},
                                         {"Gutschrift", "credit note"},
                                         {"Maßnahme", "measure"}}};

struct ObjectSort {
    std::string_view type;
    std::string_view symbol;
    Word name;
};
constexpr ObjectSort eventSort = {"OT_EVT", "ST_EV", {"erledigt", "done"}};
constexpr ObjectSort functionSort = {"OT_FUNC", "ST_FUNC", {}};
constexpr ObjectSort splitSort = {"OT_RULE", "ST_OPR_XOR_1", {"Verzweigung", "Split"}};
constexpr ObjectSort joinSort = {"OT_RULE", "ST_OPR_AND_1", {"Zusammenführung", "Join"}};
constexpr ObjectSort entitySort = {"OT_ENT_TYPE", "ST_ENT_TYPE", {"Beleg", "Record"}};
constexpr ObjectSort memberSort = {"OT_ERM_ATTR", "ST_ENT_TYPE", {"Feld", "Field"}};

struct StaffSort {
    ObjectSort object;
    std::string_view connection;  // to a function
};
constexpr std::array<StaffSort, 4> staffSorts = {
    {{{"OT_PERS_TYPE", "ST_POS", {"Rolle", "Role"}}, "CT_EXEC_2"},
     {{"OT_ORG_UNIT", "ST_ORG_UNIT_2", {"Abteilung", "Department"}}, "CT_EXEC_1"},
     {{"OT_PERS", "ST_PERS_INT", {"Person", "Person"}}, "CT_EXEC_1"},
     {{"OT_APPL_SYS_TYPE", "ST_FUNC", {"System", "System"}}, "CT_CAN_SUPP_1"}}};

std::string Joined(std::initializer_list<std::string_view> parts) {
    std::string joined;
    for (const std::string_view part : parts) joined.append(part);
    return joined;
}
std::string Marked(std::string_view mark, std::uint64_t number) {
    return Joined({mark, std::to_string(number)});
}
std::string ObjectId(std::string_view name) {
    return Joined({"ObjDef.", name, "----p--"});
}
std::string ModelId(std::uint32_t model) {
    return Joined({"Model.", Marked("m", model), "----u--"});
}

/// An object and its place in a model.
struct Node {
    const ObjectSort* sort;
    std::string name;  // unique in the export
    TwoTexts texts;
    int x;
    int y;
    std::string assignedModel = {};
};

/// A connection between two objects of a model, drawn there.
struct Edge {
    std::size_t source;
    std::size_t target;
    std::string_view type;
};

TwoTexts NameOf(const ObjectSort& sort, const std::string& name) {
    const std::uint64_t chance = Scattered(name);
    const Word& thing = things[chance % things.size()];
    if (!sort.name.german.empty())
        return {Joined({sort.name.german, " ", name}), Joined({sort.name.english, " ", name})};
    const Word& verb = verbs[(chance >> 16U) % verbs.size()];
    return {Joined({thing.german, " ", verb.german, " ", name}),
            Joined({verb.english, " ", thing.english, " ", name})};
}

TwoTexts DescriptionOf(const Node& node) {
    return {
        Joined({"\"", node.texts.german, "\" wird nach der geltenden Richtlinie bearbeitet und abgelegt."}),
        Joined({"\"", node.texts.english, "\" is handled and filed as the directive in force tells."})};
}

/// One process model: blocks of functions, one below the other. A block is a function, a second one, a split
/// into two, and their join.
class ModelGraph {
  public:
    ModelGraph(const AmlPlan& plan, std::uint32_t number) : plan_(plan), number_(number) {
        for (std::uint32_t kind = 0; kind < staffSorts.size(); ++kind) AddStaff(kind);
        std::size_t before = Add(eventSort, "s", 0, -200);
        for (std::uint32_t left = plan.functions; left > 0; ++block_) {
            before = left >= 4 ? AddBlock(before) : AddSingleFunction(before);
            left -= left >= 4 ? 4 : 1;
        }
    }

    std::uint32_t Number() const { return number_; }
    const std::vector<Node>& Nodes() const { return nodes_; }
    const std::vector<Edge>& Edges() const { return edges_; }
    /// Nodes before this one belong to the folder.
    static std::size_t FirstOwn() { return staffSorts.size() * staffOfAKind; }

    std::string EdgeId(std::size_t edge) const {
        return Joined({"CxnDef.", Marked("m", number_), Marked("e", edge), "----q--"});
    }
    /// The connections from a node, in their order.
    std::vector<GeneratedConnection> ConnectionsFrom(std::size_t node) const {
        std::vector<GeneratedConnection> connections;
        for (const std::size_t edge : outgoing_[node])
            connections.push_back(
                {EdgeId(edge), edges_[edge].type, ObjectId(nodes_[edges_[edge].target].name)});
        return connections;
    }
    const std::vector<std::size_t>& EdgesFrom(std::size_t node) const { return outgoing_[node]; }

  private:
    std::size_t AddNode(Node node) {
        nodes_.push_back(std::move(node));
        outgoing_.emplace_back();
        return nodes_.size() - 1;
    }
    void AddStaff(std::uint32_t kind) {
        for (std::uint32_t i = 0; i < staffOfAKind; ++i) {
            const std::string name =
                Joined({Marked("f", number_ / modelsInFolder), Marked("k", kind), Marked("n", i)});
            const ObjectSort& sort = staffSorts[kind].object;
            AddNode({&sort, name, NameOf(sort, name), static_cast<int>(300 * i),
                     -1000 + static_cast<int>(150 * kind)});
        }
    }
    /// An object of the block; `x` and `y` count from the block's corner.
    std::size_t Add(const ObjectSort& sort, const std::string& mark, int x, int y) {
        const std::string name = Joined({Marked("m", number_), Marked("b", block_), mark});
        const int left = static_cast<int>(block_ / blocksInColumn) * 2500;
        const int top = static_cast<int>(block_ % blocksInColumn) * 900;
        return AddNode({&sort, name, NameOf(sort, name), left + x, top + y});
    }
    void Connect(std::size_t source, std::string_view type, std::size_t target) {
        outgoing_[source].push_back(edges_.size());
        edges_.push_back({source, target, type});
    }
    void Staff(std::uint32_t kind, std::size_t function) {
        Connect(kind * staffOfAKind + (number_ + block_) % staffOfAKind, staffSorts[kind].connection,
                function);
    }
    void AddData(std::size_t writer, std::size_t reader) {
        const std::size_t entity = Add(entitySort, "d", 1000, 0);
        Connect(writer, "CT_HAS_OUT", entity);
        Connect(entity, "CT_IS_INP_FOR", reader);
        for (std::uint32_t i = 0; i < 3; ++i)
            Connect(Add(memberSort, Marked("a", i), 1300, static_cast<int>(100 * i)), "CT_IS_DESC_FOR_1",
                    entity);
    }
    void AddSubProcess(std::size_t function) {
        const std::uint64_t child = std::uint64_t{number_} * subProcessesOfModel + 1 + block_;
        if (block_ < subProcessesOfModel && child < plan_.models)
            nodes_[function].assignedModel = ModelId(static_cast<std::uint32_t>(child));
    }
    /// Adds four functions behind an event or rule. Returns what the next ones stand behind.
    std::size_t AddBlock(std::size_t before) {
        const std::size_t first = Add(functionSort, "p", 0, 0);
        const std::size_t middle = Add(eventSort, "e", 0, 100);
        const std::size_t second = Add(functionSort, "q", 0, 200);
        const std::size_t split = Add(splitSort, "x", 0, 300);
        const std::size_t join = Add(joinSort, "y", 0, 800);
        Connect(before, "CT_ACTIV_1", first);
        Connect(first, "CT_CRT_1", middle);
        Connect(middle, "CT_ACTIV_1", second);
        Connect(second, "CT_LEADS_TO_1", split);
        for (int side = 0; side < 2; ++side) {
            const std::string mark = side == 0 ? "l" : "r";
            const std::size_t start = Add(eventSort, Marked(mark, 1), 300 * side, 400);
            const std::size_t function = Add(functionSort, mark, 300 * side, 500);
            const std::size_t end = Add(eventSort, Marked(mark, 2), 300 * side, 600);
            Connect(split, "CT_LEADS_TO_2", start);
            Connect(start, "CT_ACTIV_1", function);
            Connect(function, "CT_CRT_1", end);
            Connect(end, "CT_IS_EVAL_BY_1", join);
            Staff(side == 0 ? 2 : 3, function);
            if (side == 0) AddSubProcess(function);
        }
        Staff(0, first);
        Staff(1, second);
        AddData(first, second);
        return join;
    }
    std::size_t AddSingleFunction(std::size_t before) {
        const std::size_t function = Add(functionSort, "p", 0, 0);
        const std::size_t end = Add(eventSort, "e", 0, 100);
        Connect(before, "CT_ACTIV_1", function);
        Connect(function, "CT_CRT_1", end);
        return end;
    }

    AmlPlan plan_;
    std::uint32_t number_;
    std::uint32_t block_ = 0;
    std::vector<Node> nodes_;
    std::vector<Edge> edges_;
    std::vector<std::vector<std::size_t>> outgoing_;
};

void WriteDefinition(AmlWriter& writer, const Node& node,
                     const std::vector<GeneratedConnection>& connections) {
    writer.Definition(ObjectId(node.name), node.sort->type, node.sort->symbol, node.texts,
                      DescriptionOf(node), node.assignedModel, connections);
}

/// The objects that the models of a folder share, with their connections into all of them.
void WriteShared(AmlWriter& writer, const std::vector<ModelGraph>& graphs) {
    for (std::size_t node = 0; node < ModelGraph::FirstOwn(); ++node) {
        std::vector<GeneratedConnection> connections;
        for (const ModelGraph& graph : graphs)
            for (GeneratedConnection& connection : graph.ConnectionsFrom(node))
                connections.push_back(std::move(connection));
        WriteDefinition(writer, graphs.front().Nodes()[node], connections);
    }
}

void WriteModel(AmlWriter& writer, const ModelGraph& graph) {
    const std::string model = Marked("m", graph.Number());
    const auto occurrenceId = [&](std::size_t node) {
        return Joined({"ObjOcc.", model, Marked("o", node), "----x--"});
    };
    writer.BeginModel(ModelId(graph.Number()), "MT_EEPC", NameOf(functionSort, model));
    for (std::size_t node = 0; node < graph.Nodes().size(); ++node) {
        const Node& shown = graph.Nodes()[node];
        writer.BeginOccurrence(occurrenceId(node), ObjectId(shown.name), shown.sort->symbol, shown.x,
                               shown.y);
        for (const std::size_t edge : graph.EdgesFrom(node))
            writer.ConnectionOccurrence(Joined({"CxnOcc.", model, Marked("c", edge), "----y--"}),
                                        graph.EdgeId(edge), occurrenceId(graph.Edges()[edge].target), shown.x,
                                        shown.y);
        writer.EndOccurrence();
    }
    writer.EndModel();
}

void WriteFolder(AmlWriter& writer, const AmlPlan& plan, std::uint32_t firstModel) {
    const std::string name = std::to_string(firstModel / modelsInFolder + 1);
    std::vector<ModelGraph> graphs;
    const std::uint32_t end = std::min(plan.models, firstModel + modelsInFolder);
    for (std::uint32_t model = firstModel; model < end; ++model) graphs.emplace_back(plan, model);
    writer.BeginGroup(Joined({"Group.f", name}), {Joined({"Ordner ", name}), Joined({"Folder ", name})});
    WriteShared(writer, graphs);
    for (const ModelGraph& graph : graphs)
        for (std::size_t node = ModelGraph::FirstOwn(); node < graph.Nodes().size(); ++node)
            WriteDefinition(writer, graph.Nodes()[node], graph.ConnectionsFrom(node));
    for (const ModelGraph& graph : graphs) WriteModel(writer, graph);
    writer.EndGroup();
}

}  // namespace

void GenerateAml(const AmlPlan& plan, std::ostream& out) {
    AmlWriter writer(out);
    writer.Begin("Generated");
    writer.EmbeddedDocument(embeddedBytesForFunction * plan.models * plan.functions);
    writer.BeginGroup("Group.Root", {"Hauptgruppe", "Main group"});
    for (std::uint32_t model = 0; model < plan.models; model += modelsInFolder)
        WriteFolder(writer, plan, model);
    writer.EndGroup();
    writer.End();
}

std::uint32_t ModelsForSize(std::uint64_t bytes, std::uint32_t functions) {
    std::ostringstream sample;
    GenerateAml({modelsInFolder, functions}, sample);
    const auto size = static_cast<std::uint64_t>(sample.tellp());
    return static_cast<std::uint32_t>(bytes * modelsInFolder / size + 1);
}

}  // namespace wxbrg::bench
