// SPDX-License-Identifier: Apache-2.0
// How long the host waits for a management service that answers slowly or no more.
#include "contract/sal.h"

#include <QObject>
#include <QTest>

#include <windows.h>

#include <objbase.h>
#include <wbemcli.h>

#include <chrono>
#include <limits>
#include <string>
#include <vector>

namespace {

using std::chrono::milliseconds;

constexpr milliseconds answerBound{10000};
constexpr milliseconds latestStart{9000}; // of it is left when the first row is asked for, on however busy a machine
constexpr milliseconds delay{100};
constexpr milliseconds shortestDelay{80}; // as the system's clock ticks
constexpr std::size_t rowsAtMost = 4;     // of the system's, which has a hundred and more: all would outlast the bound

/// An object of the test's: it outlives everybody who counts references to it.
template <typename Interface>
class Lasting : public Interface {
public:
    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
};

/// The system's rows, each after a delay; from one of them on the service hangs. Nobody waits for that: it answers at once as
/// the service would after the time that it was given.
class SlowRows final : public Lasting<IEnumWbemClassObject> {
public:
    STDMETHODIMP Next(LONG bound, ULONG count, IWbemClassObject **objects, ULONG *returned) override
    {
        *returned = 0;
        bounds.push_back(milliseconds(bound));
        if (bounds.size() > answeredRows)
            return WBEM_S_TIMEDOUT;
        if (bounds.size() > rowsAtMost)
            return WBEM_S_FALSE;
        Sleep(static_cast<DWORD>(delay.count()));
        return system->Next(static_cast<LONG>(WBEM_INFINITE), count, objects, returned);
    }
    STDMETHODIMP Reset() override { return E_NOTIMPL; }
    STDMETHODIMP NextAsync(ULONG, IWbemObjectSink *) override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IEnumWbemClassObject **) override { return E_NOTIMPL; }
    STDMETHODIMP Skip(LONG, ULONG) override { return E_NOTIMPL; }

    IEnumWbemClassObject *system = nullptr;
    std::size_t answeredRows = 0;
    std::vector<milliseconds> bounds; ///< that each row was asked for with
};

class SlowServices final : public Lasting<IWbemServices> {
public:
    STDMETHODIMP ExecQuery(const BSTR language, const BSTR query, LONG flags, IWbemContext *context,
                           IEnumWbemClassObject **result) override
    {
        *result = &rows;
        return system->ExecQuery(language, query, flags, context, &rows.system);
    }
    STDMETHODIMP OpenNamespace(const BSTR, LONG, IWbemContext *, IWbemServices **, IWbemCallResult **) override { return no; }
    STDMETHODIMP CancelAsyncCall(IWbemObjectSink *) override { return no; }
    STDMETHODIMP QueryObjectSink(LONG, IWbemObjectSink **) override { return no; }
    STDMETHODIMP GetObject(const BSTR, LONG, IWbemContext *, IWbemClassObject **, IWbemCallResult **) override { return no; }
    STDMETHODIMP GetObjectAsync(const BSTR, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP PutClass(IWbemClassObject *, LONG, IWbemContext *, IWbemCallResult **) override { return no; }
    STDMETHODIMP PutClassAsync(IWbemClassObject *, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP DeleteClass(const BSTR, LONG, IWbemContext *, IWbemCallResult **) override { return no; }
    STDMETHODIMP DeleteClassAsync(const BSTR, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP CreateClassEnum(const BSTR, LONG, IWbemContext *, IEnumWbemClassObject **) override { return no; }
    STDMETHODIMP CreateClassEnumAsync(const BSTR, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP PutInstance(IWbemClassObject *, LONG, IWbemContext *, IWbemCallResult **) override { return no; }
    STDMETHODIMP PutInstanceAsync(IWbemClassObject *, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP DeleteInstance(const BSTR, LONG, IWbemContext *, IWbemCallResult **) override { return no; }
    STDMETHODIMP DeleteInstanceAsync(const BSTR, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP CreateInstanceEnum(const BSTR, LONG, IWbemContext *, IEnumWbemClassObject **) override { return no; }
    STDMETHODIMP CreateInstanceEnumAsync(const BSTR, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP ExecQueryAsync(const BSTR, const BSTR, LONG, IWbemContext *, IWbemObjectSink *) override { return no; }
    STDMETHODIMP ExecNotificationQuery(const BSTR, const BSTR, LONG, IWbemContext *, IEnumWbemClassObject **) override
    {
        return no;
    }
    STDMETHODIMP ExecNotificationQueryAsync(const BSTR, const BSTR, LONG, IWbemContext *, IWbemObjectSink *) override
    {
        return no;
    }
    STDMETHODIMP ExecMethod(const BSTR, const BSTR, LONG, IWbemContext *, IWbemClassObject *, IWbemClassObject **,
                            IWbemCallResult **) override
    {
        return no;
    }
    STDMETHODIMP ExecMethodAsync(const BSTR, const BSTR, LONG, IWbemContext *, IWbemClassObject *, IWbemObjectSink *) override
    {
        return no;
    }

    IWbemServices *system = nullptr;
    SlowRows rows;

private:
    static constexpr HRESULT no = E_NOTIMPL;
};

class SlowLocator final : public Lasting<IWbemLocator> {
public:
    STDMETHODIMP ConnectServer(const BSTR path, const BSTR user, const BSTR password, const BSTR locale, LONG flags,
                               const BSTR authority, IWbemContext *context, IWbemServices **result) override
    {
        *result = &services;
        return system->ConnectServer(path, user, password, locale, flags, authority, context, &services.system);
    }

    IWbemLocator *system = nullptr;
    SlowServices services;
};

/// The test's locator in place of the system's, for as long as this lives.
class SlowService final : public Lasting<IClassFactory> {
public:
    explicit SlowService(std::size_t answeredRows)
    {
        rows().answeredRows = answeredRows;
        isReady_ =
            SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)) &&
            SUCCEEDED(CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator,
                                       reinterpret_cast<void **>(&locator_.system))) &&
            SUCCEEDED(CoRegisterClassObject(CLSID_WbemLocator, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_));
    }
    ~SlowService()
    {
        CoRevokeClassObject(cookie_);
        for (IUnknown *object : {static_cast<IUnknown *>(rows().system), static_cast<IUnknown *>(locator_.services.system),
                                 static_cast<IUnknown *>(locator_.system)}) {
            if (object != nullptr)
                object->Release();
        }
        CoUninitialize();
    }
    SlowService(const SlowService &) = delete;
    SlowService &operator=(const SlowService &) = delete;

    STDMETHODIMP QueryInterface(REFIID, void **object) override
    {
        *object = this; // nobody asks a class for anything but IUnknown and IClassFactory
        return S_OK;
    }
    STDMETHODIMP CreateInstance(IUnknown *, REFIID, void **object) override
    {
        *object = &locator_;
        return S_OK;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

    bool isReady() const { return isReady_; }
    SlowRows &rows() { return locator_.services.rows; }

private:
    SlowLocator locator_;
    DWORD cookie_ = 0;
    bool isReady_ = false;
};

// Of a class that has several instances on every machine.
std::int32_t ask(std::vector<sal::CimRow> &rows)
{
    const char *name = "Name";
    return get_cim()->query(rows, {}, "Win32_Process", 1, &name, "root\\CIMV2");
}

} // namespace

class TestSalCimBoundWindows : public QObject {
    Q_OBJECT

private slots:
    void slowRowsAreWaitedForWithinOneBound();
    void aServiceThatHangsIsGivenUp();
};

void TestSalCimBoundWindows::slowRowsAreWaitedForWithinOneBound()
{
    SlowService service(std::numeric_limits<std::size_t>::max());
    QVERIFY(service.isReady());
    std::vector<sal::CimRow> rows;
    QCOMPARE(ask(rows), 0);
    const std::vector<milliseconds> &bounds = service.rows().bounds;
    QVERIFY(rows.size() >= 2);
    QCOMPARE(bounds.size(), rows.size() + 1); // the last answer is that there are no more
    QVERIFY(bounds.front() <= answerBound && bounds.front() > latestStart);
    for (std::size_t i = 1; i < bounds.size(); ++i)
        QVERIFY(bounds[i] <= bounds[i - 1] - shortestDelay);
}

void TestSalCimBoundWindows::aServiceThatHangsIsGivenUp()
{
    SlowService service(1);
    QVERIFY(service.isReady());
    std::vector<sal::CimRow> rows;
    QCOMPARE(ask(rows), static_cast<std::int32_t>(WBEM_S_TIMEDOUT));
    QCOMPARE(rows.size(), std::size_t{1});
    QCOMPARE(service.rows().bounds.size(), std::size_t{2}); // it is not asked again
    QVERIFY(service.rows().bounds.back() <= answerBound - shortestDelay);
}

QTEST_GUILESS_MAIN(TestSalCimBoundWindows)
#include "tst_sal_cim_bound_windows.moc"
