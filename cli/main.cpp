#include "cli/CommandLine.h"
#include "cli/ProcessSetup.h"

int main(int argc, char* argv[])
{
    using namespace Korvex::Meridane::Designer;

    ProcessSetup::prepare();
    return CommandLine::run(argc, argv);
}
