// Paths that share what they have in common, against the same paths listed one by one.

#include "mapping/PathCollection.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "mapping/RelatingPaths.h"
#include "mapping/modPath.h"
#include "support/Text.h"
#include "tests/fixture/CoreTest.h"

namespace wxbrg::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Objects = std::vector<ARISObjDef>;

/// The objects between the ends of each path.
std::vector<Objects> Expanded(const PathCollection& paths) {
    std::vector<Objects> all;
    for (const PathCollection::Entry& entry : paths) {
        Objects start;
        for (const ARISObjDef& object : entry.head->ColARISObjectDefinitionsOnPath) start.push_back(object);
        if (!entry.tails) {
            all.push_back(start);
            continue;
        }
        start.push_back(entry.head->TO_ARISObjectDefinition);
        for (const Objects& tail : Expanded(*entry.tails)) {
            all.push_back(start);
            all.back().insert(all.back().end(), tail.begin(), tail.end());
        }
    }
    return all;
}

/// Writes down what it reads, an object by its name where that is in capitals; other objects are silent. A
/// path is written down at its end where one of its objects was, and also where none was from the second such
/// path on.
class Writer : public PathReader {
  public:
    bool Read(const ARISObjDef& object) override {
        ++reads;
        const std::string name = object->Name(1033);
        if (UpperCase(name) != name) return false;
        path_ += name;
        return true;
    }
    void EndPath() override {
        if (path_.empty() && !HeedsSilentPaths()) return;
        loudPaths_ += path_.empty() ? 0 : 1;
        text += path_ + ".";
        path_.clear();
    }
    bool HeedsSilentPaths() const override { return heedsFromSecond && loudPaths_ > 1; }

    bool heedsFromSecond = false;
    int reads = 0;
    std::string text;

  private:
    std::string path_;
    int loudPaths_ = 0;
};

class PathCollectionTest : public CoreTest {
  protected:
    /// All ways through layers of objects, of which those of one layer are joined to those of the next or the
    /// next but one as `joined` says.
    template <class Joined>
    PathCollection Through(const std::vector<Objects>& layers, Joined&& joined) {
        const ARISObjDef end = Function("end");
        std::vector<std::vector<Ref<PathCollection>>> onward(layers.size());
        const auto waysFrom = [&](const ARISObjDef& from, std::size_t next) {
            PathCollection ways;
            for (std::size_t layer = next; layer < std::min(next + 2, layers.size()); ++layer)
                for (std::size_t i = 0; i < layers[layer].size(); ++i)
                    if (joined() && !onward[layer][i]->IsEmpty())
                        ways.Add(ConcatenatePath(CreatePath(from, layers[layer][i]), onward[layer][i]));
            if (next + 1 >= layers.size() && joined()) ways.Add(CreatePath(from, end));
            return ways;
        };
        for (std::size_t layer = layers.size(); layer-- > 0;)
            for (const ARISObjDef& object : layers[layer])
                onward[layer].push_back(gBlock.gPool.Create<PathCollection>(waysFrom(object, layer + 1)));
        return waysFrom(Function("start"), 0);
    }

    /// The paths from "start" to "end" over N pairs of events, each of which parts and meets again: 2^N.
    PathCollection Pairs(int count) {
        const Ref<FakeObject> start = Function("start");
        const Ref<FakeObject> end = Function("end");
        Ref<FakeObject> last = start;
        for (int i = 0; i < count; ++i) {
            const std::string number = std::to_string(i);
            const Ref<FakeObject> meet = RuleObject("meet" + number);
            Flow({last, Event("a" + number), meet});
            Flow({last, Event("b" + number), meet});
            last = meet;
        }
        Flow({last, end});
        return *Find_Relating_Paths_Using_Mapping_Rule({}, start, end, "FUNCTION_SENDS_CONTROL_TO_FUNCTION");
    }
};

TEST_F(PathCollectionTest, PathsComeInTheirOrder) {
    const PathCollection paths = Pairs(2);
    EXPECT_THAT(
        PathTexts(paths),
        ElementsAre("start > a0 > meet0 > a1 > meet1 > end", "start > a0 > meet0 > b1 > meet1 > end",
                    "start > b0 > meet0 > a1 > meet1 > end", "start > b0 > meet0 > b1 > meet1 > end"));
}

TEST_F(PathCollectionTest, AnObjectIsOnSomeOrOnAllPaths) {
    const PathCollection paths = Pairs(30);
    const Objects first = paths.FirstObjectsBetween();
    ASSERT_EQ(first.size(), 60U);
    EXPECT_EQ(first.at(58)->Name(1033), "a29");
    EXPECT_TRUE(paths.SomePassThrough(first.at(58)->Guid()));
    EXPECT_FALSE(paths.AllPassThrough(first.at(58)->Guid()));
    EXPECT_TRUE(paths.AllPassThrough(first.at(59)->Guid()));
    EXPECT_FALSE(paths.SomePassThrough(Event("elsewhere")->Guid()));
}

TEST_F(PathCollectionTest, AnObjectIsLookedForWithoutRegardToTheCaseOfItsGuid) {
    const Ref<FakeObject> joint = repository.Object(ObjectType::event, "joint", "{joint}");
    const Ref<FakeObject> inner = repository.Object(ObjectType::event, "inner", "{inner}");
    const Ref<clsPath> tail = CreatePath(joint, Function("end"));
    tail->ColARISObjectDefinitionsOnPath.Add(inner, inner->Guid());
    PathCollection head;
    head.Add(CreatePath(Function("start"), joint));
    PathCollection tails;
    tails.Add(tail);
    const PathCollection paths = ConcatenatePaths(head, tails);
    for (const char* guid : {"{JOINT}", "{INNER}"}) {
        EXPECT_TRUE(paths.SomePassThrough(guid)) << guid;
        EXPECT_TRUE(paths.AllPassThrough(guid)) << guid;
    }
    EXPECT_FALSE(head.SomePassThrough("{joint}"));
}

TEST_F(PathCollectionTest, OfNoPathsAllPassThroughAnything) {
    EXPECT_TRUE(PathCollection().AllPassThrough("{guid}"));
    EXPECT_FALSE(PathCollection().SomePassThrough("{guid}"));
    EXPECT_THAT(PathCollection().FirstObjectsBetween(), IsEmpty());
}

TEST_F(PathCollectionTest, TheFirstObjectsAreThoseOfTheFirstPathThatHasAny) {
    const Ref<FakeObject> event = Event("event");
    PathCollection paths;
    paths.Add(CreatePath(Function("a"), Function("b")));
    EXPECT_THAT(paths.FirstObjectsBetween(), IsEmpty());
    const Ref<clsPath> over = CreatePath(Function("a"), Function("b"));
    over->ColARISObjectDefinitionsOnPath.Add(event, event->Guid());
    paths.Add(over);
    EXPECT_THAT(paths.FirstObjectsBetween(), ElementsAre(ARISObjDef(event)));
}

TEST_F(PathCollectionTest, SilentPathsAreReadOnceForEachObject) {
    Writer writer;
    ReadPaths(Pairs(30), writer);
    EXPECT_EQ(writer.text, "");
    EXPECT_EQ(writer.reads, 3 * 30);
}

TEST_F(PathCollectionTest, OnlyThePathsWithALoudObjectAreRead) {
    PathCollection paths = Pairs(30);
    const Ref<FakeObject> loud = Event("LOUD");
    const Ref<clsPath> over = CreatePath(Function("start"), Function("end"));
    over->ColARISObjectDefinitionsOnPath.Add(loud, loud->Guid());
    paths.Add(over);
    Writer writer;
    ReadPaths(paths, writer);
    EXPECT_EQ(writer.text, "LOUD.");
    EXPECT_EQ(writer.reads, 3 * 30 + 1);
}

TEST_F(PathCollectionTest, RandomPathsReadAsIfTheyWereToldOneByOne) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        std::mt19937 random(seed);
        const auto oneIn = [&](unsigned n) {
            return random() % n == 0;
        };
        std::vector<Objects> layers(1 + random() % 5);
        for (Objects& layer : layers)
            for (std::size_t i = 1 + random() % 3; i > 0; --i)
                layer.push_back(Event((oneIn(6) ? "X" : "x") + std::to_string(random() % 1000)));
        const PathCollection paths = Through(layers, [&] {
            return !oneIn(4);
        });
        Writer shared;
        Writer plain;
        shared.heedsFromSecond = plain.heedsFromSecond = oneIn(2);
        ReadPaths(paths, shared);
        const std::vector<Objects> all = Expanded(paths);
        for (const Objects& path : all) {
            for (const ARISObjDef& object : path) plain.Read(object);
            plain.EndPath();
        }
        ASSERT_EQ(shared.text, plain.text) << "seed " << seed;
        const auto first = std::find_if(all.begin(), all.end(), [](const Objects& path) {
            return !path.empty();
        });
        ASSERT_EQ(paths.FirstObjectsBetween(), first == all.end() ? Objects() : *first) << "seed " << seed;
        for (const Objects& layer : layers)
            for (const ARISObjDef& object : layer) {
                const auto holds = [&](const Objects& path) {
                    return std::find(path.begin(), path.end(), object) != path.end();
                };
                ASSERT_EQ(paths.AllPassThrough(object->Guid()), std::all_of(all.begin(), all.end(), holds));
                ASSERT_EQ(paths.SomePassThrough(object->Guid()), std::any_of(all.begin(), all.end(), holds));
            }
    }
}

}  // namespace
}  // namespace wxbrg::test
