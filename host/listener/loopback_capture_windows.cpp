// SPDX-License-Identifier: Apache-2.0
#include "host/listener/loopback_capture.h"

#include "audio/endpoints/core_audio_ids_windows.h"
#include "audio/endpoints/visit_endpoints_windows.h"
#include "host/listener/endpoint_capture_windows.h"
#include "host/listener/loopback_timeline.h"
#include "host/listener/rate_converter.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <thread>
#include <utility>

namespace host {

namespace {

using namespace std::chrono_literals;
using ostra::audio::ComPointer;

/// As often as the system hands over a packet. It has no event for this on every Windows that we run on.
constexpr auto lookInterval = 10ms;

struct Output {
    QString name;
    std::u16string id;
};

QString nameOf(IMMDevice &endpoint)
{
    ComPointer<IPropertyStore> properties;
    if (FAILED(endpoint.OpenPropertyStore(STGM_READ, properties.receive())))
        return {};
    PROPVARIANT value;
    PropVariantInit(&value);
    QString name;
    if (SUCCEEDED(properties->GetValue(ostra::audio::friendlyNameKey, &value)) && value.vt == VT_LPWSTR)
        name = QString::fromWCharArray(value.pwszVal);
    PropVariantClear(&value);
    return name;
}

HRESULT openEnumerator(ComPointer<IMMDeviceEnumerator> &enumerator)
{
    return CoCreateInstance(ostra::audio::deviceEnumeratorClass, nullptr, CLSCTX_INPROC_SERVER,
                            ostra::audio::deviceEnumeratorId, enumerator.receiveAny());
}

// The calling thread is in an apartment.
QList<Output> readOutputs()
{
    ComPointer<IMMDeviceEnumerator> enumerator;
    ComPointer<IMMDeviceCollection> endpoints;
    QList<Output> outputs;
    if (FAILED(openEnumerator(enumerator)) ||
        FAILED(enumerator->EnumAudioEndpoints(eRender, DEVICE_STATE_ACTIVE, endpoints.receive())))
        return outputs;
    ostra::audio::visitAll(endpoints.get(), [&outputs](IMMDevice *endpoint, UINT) {
        ostra::audio::CoTaskText id;
        if (SUCCEEDED(endpoint->GetId(id.receive())))
            outputs.append({nameOf(*endpoint), ostra::audio::unitsOf(id.view())});
        return S_OK;
    });
    return outputs;
}

qsizetype countOf(const QString &name, const QList<Output> &outputs)
{
    return std::count_if(outputs.begin(), outputs.end(), [&name](const Output &output) { return output.name == name; });
}

HRESULT openById(const std::u16string &id, EndpointCapture &capture)
{
    ComPointer<IMMDeviceEnumerator> enumerator;
    ComPointer<IMMDevice> endpoint;
    const std::wstring wideId(id.begin(), id.end());
    HRESULT result = openEnumerator(enumerator);
    if (SUCCEEDED(result))
        result = enumerator->GetDevice(wideId.c_str(), endpoint.receive());
    return SUCCEEDED(result) ? capture.open(*endpoint.get()) : result;
}

bool canBeHeard(const Output &output)
{
    EndpointCapture capture;
    return SUCCEEDED(openById(output.id, capture));
}

QString hexadecimal(HRESULT result)
{
    return QStringLiteral("0x%1").arg(static_cast<unsigned long>(result), 8, 16, QLatin1Char('0'));
}

} // namespace

class LoopbackCapture::Worker {
public:
    Worker(std::u16string id, BlockRing &ring) : id_(std::move(id)), ring_(ring) {}

    HRESULT start()
    {
        std::future<HRESULT> opened = opened_.get_future();
        thread_ = std::jthread([this](const std::stop_token &stop) { run(stop); });
        return opened.get();
    }
    int channelCount() const { return channelCount_; }
    bool isLost() const { return isLost_; }

private:
    void run(const std::stop_token &stop)
    {
        const ostra::audio::ComApartment apartment;
        EndpointCapture capture;
        HRESULT result = apartment.isUsable() ? openById(id_, capture) : CO_E_NOTINITIALIZED;
        if (SUCCEEDED(result))
            result = capture.start();
        channelCount_ = static_cast<int>(capture.format().channelCount);
        opened_.set_value(result);
        if (FAILED(result))
            return;
        try {
            listen(capture, stop);
        } catch (const std::bad_alloc &) {
        }
        isLost_ = true;
    }

    void listen(EndpointCapture &capture, const std::stop_token &stop)
    {
        LoopbackTimeline timeline(capture.format().rate, std::chrono::steady_clock::now());
        RateConverter converter(capture.format().rate);
        std::vector<float> stereo;
        while (!stop.stop_requested()) {
            stereo.clear();
            if (FAILED(capture.read(stereo)))
                return;
            for (const LoopbackStretch &stretch : timeline.advance(stereo, std::chrono::steady_clock::now()))
                ring_.write(converter.convert(stretch.stereo), stretch.end, stretch.isHeard);
            std::this_thread::sleep_for(lookInterval);
        }
    }

    std::u16string id_;
    BlockRing &ring_;
    std::promise<HRESULT> opened_;
    std::atomic<int> channelCount_{0};
    std::atomic<bool> isLost_{false};
    std::jthread thread_; ///< the last member: it ends before the others do
};

LoopbackCapture::LoopbackCapture() = default;
LoopbackCapture::~LoopbackCapture() = default;

QStringList LoopbackCapture::devices()
{
    const ostra::audio::ComApartment apartment;
    if (!apartment.isUsable())
        return {};
    QStringList names;
    const QList<Output> outputs = readOutputs();
    for (const Output &output : outputs) {
        if (!output.name.isEmpty() && countOf(output.name, outputs) == 1 && canBeHeard(output))
            names.append(output.name);
    }
    return names;
}

bool LoopbackCapture::open(const QString &device, BlockRing &ring)
{
    const ostra::audio::ComApartment apartment;
    const QList<Output> outputs = apartment.isUsable() ? readOutputs() : QList<Output>();
    const qsizetype count = countOf(device, outputs);
    if (count != 1) {
        errorText_ = count == 0 ? QStringLiteral("no output is named '%1'").arg(device)
                                : QStringLiteral("%1 outputs are named '%2'").arg(count).arg(device);
        return false;
    }
    for (const Output &output : outputs) {
        if (output.name == device)
            return openEndpoint(output.id, ring);
    }
    return false;
}

bool LoopbackCapture::openEndpoint(const std::u16string &id, BlockRing &ring)
{
    worker_ = std::make_unique<Worker>(id, ring);
    const HRESULT result = worker_->start();
    if (FAILED(result))
        errorText_ = QStringLiteral("the system does not let it be heard (%1)").arg(hexadecimal(result));
    return SUCCEEDED(result);
}

int LoopbackCapture::channelCount() const { return worker_ ? worker_->channelCount() : 0; }

bool LoopbackCapture::isLost() const { return worker_ && worker_->isLost(); }

} // namespace host
