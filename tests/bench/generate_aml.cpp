#include <CLI/CLI.hpp>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>

#include "tests/bench/AmlGenerator.h"

/// Writes a generated ARIS XML export, of a size or of a number of models.
int main(int argc, char** argv) {
    wxbrg::bench::AmlPlan plan;
    std::uint64_t megabytes = 0;
    std::string file;
    CLI::App app("Writes a generated ARIS XML export (AML): the same plan, the same bytes.");
    auto* const models = app.add_option("--models", plan.models, "number of models")->capture_default_str();
    app.add_option("--functions", plan.functions, "functions a model")->capture_default_str();
    app.add_option("--megabytes", megabytes, "as many models as make this size")->excludes(models);
    app.add_option("file", file, "the file to write; standard output when there is none");
    CLI11_PARSE(app, argc, argv);

    if (megabytes > 0) plan.models = wxbrg::bench::ModelsForSize(megabytes << 20U, plan.functions);
    if (file.empty()) {
        wxbrg::bench::GenerateAml(plan, std::cout);
        return std::cout.flush() ? 0 : 1;
    }
    std::ofstream out(file, std::ios::binary);
    wxbrg::bench::GenerateAml(plan, out);
    out.close();
    if (!out) std::cerr << file << " could not be written\n";
    return out ? 0 : 1;
}
