// SPDX-License-Identifier: Apache-2.0
// hold_volumes STATE_FOLDER: stands for a host in the midst of a run. Says "holding", or "refused: " and why; then, for each
// line on its standard input: "finish" ends the run as it should end.
#include "audio/volume_guard.h"
#include "host/guardian/guardian_client.h"

#include <QCoreApplication>

#include <iostream>
#include <string>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    host::GuardianClient guardian(QCoreApplication::arguments().at(1));
    if (!guardian.start()) {
        std::cout << "refused: " << guardian.errorText().toStdString() << std::endl;
        return 1;
    }
    ostra::audio::VolumeGuard volumes = ostra::audio::makeVolumeGuard(100);
    std::cout << "holding" << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        if (line != "finish")
            continue;
        volumes.reset();
        const QStringList names = guardian.finish();
        std::cout << "put back: " << names.join(QLatin1Char('|')).toStdString() << '\n'
                  << "error: " << guardian.errorText().toStdString() << std::endl;
    }
    return 0;
}
