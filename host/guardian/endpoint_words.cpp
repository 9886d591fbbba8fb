// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/endpoint_words.h"

#include "audio/endpoints/endpoint_names.h"

#include <algorithm>

using ostra::audio::EndpointName;
using ostra::audio::EndpointNames;

namespace host {

namespace {

QString wordsFor(const EndpointName &name)
{
    return name.description.empty() ? QString::fromStdU16String(name.id) : QString::fromStdString(name.description);
}

EndpointNames currentNames()
{
    EndpointNames names;
    ostra::audio::readEndpointNames(names); // the names before a failing one are better than none
    return names;
}

} // namespace

QStringList endpointDescriptions()
{
    QStringList descriptions;
    for (const EndpointName &name : currentNames())
        descriptions.append(wordsFor(name));
    return descriptions;
}

QStringList describeEndpoints(const std::vector<std::u16string> &ids)
{
    QStringList descriptions;
    const EndpointNames names = ids.empty() ? EndpointNames() : currentNames();
    for (const std::u16string &id : ids) {
        const auto found = std::ranges::find(names, id, &EndpointName::id);
        descriptions.append(found == names.end() ? QString::fromStdU16String(id) : wordsFor(*found));
    }
    return descriptions;
}

} // namespace host
