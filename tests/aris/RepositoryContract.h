#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "aris/Repository.h"
#include "tests/aris/RepositoryText.h"

/// What every provider of repositories has to answer, whatever it reads. A provider is put to it by
/// INSTANTIATE_TEST_SUITE_P(Name, RepositoryContract, testing::Values(RepositoryProvider{...})).
namespace wxbrg::test {

/// A repository that a provider has opened.
class ProvidedRepository {
  public:
    virtual ~ProvidedRepository() = default;
    virtual ARISApplication Application() = 0;
};

/// Makes a repository with a content and opens it.
struct RepositoryProvider {
    std::string name;
    std::function<std::unique_ptr<ProvidedRepository>(const RepositoryText&)> provide;

    friend std::ostream& operator<<(std::ostream& out, const RepositoryProvider& provider) {
        return out << provider.name;
    }
};

class RepositoryContract : public testing::TestWithParam<RepositoryProvider> {
  protected:
    /// Opens a repository for the rest of the test.
    ARISDatabase Open(const RepositoryText& content, const std::string& user = {});
    /// The one model of a name and of the type 13.
    static ARISModel ModelOf(ARISDatabase database, const std::string& name);
    /// The object of a type and name in a model; an empty reference where there is none.
    static ARISObjDef ObjectOf(ARISModel model, std::int32_t type, const std::string& name);

  private:
    std::unique_ptr<ProvidedRepository> repository_;
};

}  // namespace wxbrg::test
