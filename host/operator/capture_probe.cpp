// SPDX-License-Identifier: Apache-2.0
#include "host/operator/capture_probe.h"

#include "host/operator/listener_link.h"
#include "host/precheck/listening_sources.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace host {

namespace {

constexpr std::chrono::seconds limit{3};
/// Of a tenth of a second each. Some microphones deliver zeros for a while when they are opened.
constexpr int zeroMomentLimit = 10;
/// What the listener calls the level of zeros.
constexpr double digitalSilenceDbfs = -120.0;

} // namespace

Delivery probeCapture(const QString &source)
{
    ListenerLink listener;
    QEventLoop loop;
    Delivery delivery = Delivery::unknown;
    int zeroMomentCount = 0;
    QObject::connect(&listener, &ListenerLink::metered, &loop, [&](const MeteredMoment &moment) {
        if (delivery != Delivery::unknown)
            return;
        if (moment.peakDbfs > digitalSilenceDbfs)
            delivery = Delivery::sound;
        else if (++zeroMomentCount >= zeroMomentLimit)
            delivery = Delivery::zerosOnly;
        if (delivery != Delivery::unknown)
            loop.quit();
    });
    QObject::connect(&listener, &ListenerLink::lost, &loop, &QEventLoop::quit);
    QTimer::singleShot(limit, &loop, &QEventLoop::quit);
    listener.launch({QStringLiteral("--source"), source, QStringLiteral("--meter")});
    loop.exec();
    return delivery;
}

bool mustDeliverNoise(const ListeningSource &source)
{
    return source.hearsOutputs.isEmpty() && !source.isVirtual && !source.isMuted && source.level > 0;
}

} // namespace host
