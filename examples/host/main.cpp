// SPDX-License-Identifier: Apache-2.0
// The smallest host that runs a test. It lies beside the module.
//   example_host                    lists the output devices
//   example_host DEVICE [SECONDS]   runs the playback test on one, stops it after that time, ends with its code
#include "contract/abstract_widget_wrapper.h"
#include "contract/exports.h"
#include "contract/input_request.h"
#include "contract/result_codes.h"
#include "contract/test_context.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLibrary>

#include <iostream>

namespace {

// Everything that a test may ask of its host. One object can be all four services.
class Context final : public ostra::TestContext, ostra::MessageSink, ostra::ProgressReporter, ostra::EventSource {
public:
    Context(ostra::SystemComponent *component, QDeadlineTimer end) : component_(component), end_(end) {}
    ostra::SystemComponent *component() override { return component_; }
    ostra::MessageSink *messages() override { return this; }
    ostra::ProgressReporter *reporter() override { return this; }
    ostra::EventSource *events() override { return this; }
    bool continueOnOutcome() override { return end_.hasExpired(); } // true stops the test

private:
    void addMessage(std::string text, std::uint32_t, std::uint32_t) override { std::cout << "message: " << text << '\n'; }
    void report(std::uint32_t percent, std::string text) override { std::cout << percent << " % " << text << '\n'; }
    bool canReceiveInput() override { return true; }
    std::uint32_t pendingEvents() override { return 0; } // nothing spoils this run
    void requestInput(ostra::InputRequest *request) override
    {
        if (request->widget != nullptr) { // a dialog of the module: run it, on the GUI thread
            request->widget->exec(nullptr, nullptr);
            return;
        }
        const bool isQuestion = request->firstOption == 5; // else the instructions
        std::cout << request->title << ": " << request->text << (isQuestion ? " (y or n) " : " (y to go on) ") << std::flush;
        std::string answer;
        const bool isYes = std::getline(std::cin, answer) && answer == "y";
        request->answer = isQuestion ? (isYes ? 3 : 4) : (isYes ? 1 : 0);
    }
    void reserved3() override {}
    void reserved4() override {}

    ostra::SystemComponent *component_;
    QDeadlineTimer end_;
};

template <typename Function>
Function *resolve(QLibrary &library, const char *name)
{
    return reinterpret_cast<Function *>(library.resolve(name));
}

void print(const ostra::SystemComponent &device)
{
    std::cout << device.name() << '\n';
    for (const auto &[key, value] : device.info().properties)
        std::cout << "  " << key << ": " << value << '\n';
}

int work(ostra::ModuleInterface &module, const QStringList &arguments)
{
    ostra::SystemComponentManager *devices = module.componentManager();
    devices->refresh();
    for (std::uint32_t index = 0; ostra::SystemComponent *device = devices->componentAt(index); ++index) {
        if (arguments.size() < 2)
            print(*device);
        else if (device->name() == arguments[1].toStdString()) {
            ostra::Test *test = module.diagnosticAt(0)->findTest(ostra::identities::audioPlaybackTest);
            const QDeadlineTimer never(QDeadlineTimer::Forever);
            Context context(device, arguments.size() > 2 ? QDeadlineTimer(arguments[2].toLongLong() * 1000) : never);
            return test->isSupported(device) ? int(test->run(&context)) : int(ostra::result::cannotBePerformed);
        }
    }
    return arguments.size() < 2 ? 0 : 2; // no such device
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QLibrary library(QCoreApplication::applicationDirPath() + "/module_audio"); // by its full path
    const auto get = resolve<GetModuleInterfaceInstanceFunction>(library, ostra::exports::getModuleInterfaceInstance);
    const auto release =
        resolve<ReleaseModuleInterfaceInstanceFunction>(library, ostra::exports::releaseModuleInterfaceInstance);
    ostra::ModuleInterface *module = get != nullptr && release != nullptr ? get() : nullptr;
    if (module == nullptr)
        return std::cerr << library.errorString().toStdString() << '\n', 1;
    const int code = work(*module, application.arguments());
    release(); // every pointer from the module is dead now
    return code;
}
