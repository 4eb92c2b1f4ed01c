#include "mapping/ProfileChains.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "mapping/DefaultMappingRules.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// A rule, by the upper case of its name, at an object of a type.
using Station = std::pair<std::string, std::int32_t>;
using Chain = std::pair<Station, Station>;

std::set<Chain> BuiltInChains() {
    std::set<Chain> chains;
    for (const defaultRules::StepRow& step : defaultRules::steps)
        if (!step.continues.empty())
            chains.insert({{UpperCase(step.rule), step.source}, {UpperCase(step.continues), step.target}});
    return chains;
}

/// A chained step of the profile.
struct PlacedChain {
    Chain chain;
    TextPlace place;
};

class ChainSearch {
  public:
    explicit ChainSearch(const ProfileClauses& clauses) {
        for (const ProfileClause& clause : clauses.clauses) {
            if (clause.doubled) continue;
            const std::string rule = UpperCase(clause.name.text);
            names_.emplace(rule, clause.name.text);
            for (const ProfileStep& step : clause.steps) AddChain(rule, step);
        }
    }

    std::vector<ChainCircle> Circles() const {
        const std::set<Chain> builtIn = BuiltInChains();
        std::set<std::set<Station>> known;
        std::vector<ChainCircle> circles;
        for (const PlacedChain& each : chains_) {
            if (builtIn.contains(each.chain)) continue;
            const std::vector<Station> way = Way(each.chain.second, each.chain.first);
            if (way.empty() || !known.emplace(way.begin(), way.end()).second) continue;
            ChainCircle circle{each.place, {names_.at(each.chain.first.first)}};
            for (const Station& station : way) circle.rules.push_back(names_.at(station.first));
            circles.push_back(std::move(circle));
        }
        return circles;
    }

  private:
    void AddChain(const std::string& rule, const ProfileStep& step) {
        if (step.continues.text.empty() || !step.source.number || !step.target.number) return;
        const Chain chain{{rule, *step.source.number}, {UpperCase(step.continues.text), *step.target.number}};
        chains_.push_back({chain, step.continues.place});
        goesOnTo_[chain.first].push_back(chain.second);
    }

    /// The stations of the shortest way, both ends included; none where there is no way.
    std::vector<Station> Way(const Station& from, const Station& to) const {
        std::map<Station, Station> cameFrom{{from, from}};
        std::deque<Station> open{from};
        while (!open.empty() && !cameFrom.contains(to)) {
            const Station station = open.front();
            open.pop_front();
            const auto found = goesOnTo_.find(station);
            if (found == goesOnTo_.end()) continue;
            for (const Station& next : found->second)
                if (cameFrom.emplace(next, station).second) open.push_back(next);
        }
        if (!cameFrom.contains(to)) return {};
        std::vector<Station> way{to};
        while (way.back() != from) way.push_back(cameFrom.at(way.back()));
        std::reverse(way.begin(), way.end());
        return way;
    }

    std::map<std::string, std::string> names_;  ///< as they are written, by their upper case
    std::vector<PlacedChain> chains_;
    std::map<Station, std::vector<Station>> goesOnTo_;
};

}  // namespace

std::vector<ChainCircle> CirclesOf(const ProfileClauses& clauses) {
    return ChainSearch(clauses).Circles();
}

}  // namespace wxbrg
