#include <exception>
#include <iostream>
#include <memory>

#include "cli/CauseText.h"
#include "cli/ExitStatus.h"
#include "cli/Program.h"
#include "cli/System.h"

int main(int argc, char** argv) {
    using namespace wxbrg;
    try {
        const std::unique_ptr<cli::System> system = cli::OpenSystem();
        return cli::RunProgram(system->Arguments(argc, argv), system->Environment());
    } catch (const std::exception& error) {
        cli::ReportException(error, std::cerr);
        return cli::ExitStatus::failure;
    }
}
