#include "cli/commandline.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "core/model/kwdocument.h"

int saveCommand(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("save"),
                     QStringLiteral("Loads a plan and writes it again, as the program does."));
    line.addOutputOption();
    if (const auto status = line.parse(arguments))
        return *status;
    KWDocument document;
    KWViewSettings views;
    if (const int status = loadPlanToWrite(document, line.plan(), views))
        return status;
    return writeOutput(line.output(), document.toPlanText(views));
}
