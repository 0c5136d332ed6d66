#include "winui/controls/PageTabAccessible.h"

#include <oleacc.h>

#include <utility>

#include "winui/controls/Subclass.h"

namespace PageTabAccessible {

namespace {

using CreateStdAccessibleObjectFn = HRESULT(WINAPI*)(HWND, LONG, REFIID, void**);
using LresultFromObjectFn = LRESULT(WINAPI*)(REFIID, WPARAM, LPUNKNOWN);

struct Library {
    CreateStdAccessibleObjectFn createStandard = nullptr;
    LresultFromObjectFn lresultFromObject = nullptr;
};

template <typename Function>
Function Find(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// The accessibility library, loaded once; empty when it cannot be.
const Library& Oleacc() {
    static const Library library = [] {
        Library found;
        if (HMODULE module = LoadLibraryA("oleacc.dll")) {
            found.createStandard = Find<CreateStdAccessibleObjectFn>(module, "CreateStdAccessibleObject");
            found.lresultFromObject = Find<LresultFromObjectFn>(module, "LresultFromObject");
        }
        return found;
    }();
    return library;
}

// The standard object of the button with the role and selection of a page tab.
class TabObject final : public IAccessible {
public:
    TabObject(IAccessible* standard, std::function<bool()> selected)
        : m_standard(standard), m_selected(std::move(selected)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr)
            return E_POINTER;
        if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible) {
            *object = static_cast<IAccessible*>(this);
            AddRef();
            return S_OK;
        }
        return m_standard->QueryInterface(id, object);  // IOleWindow and the like
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return InterlockedIncrement(&m_references); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = InterlockedDecrement(&m_references);
        if (left == 0) {
            m_standard->Release();
            delete this;
        }
        return static_cast<ULONG>(left);
    }

    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        if (!IsSelf(child))
            return m_standard->get_accRole(child, role);
        if (role == nullptr)
            return E_INVALIDARG;
        role->vt = VT_I4;
        role->lVal = ROLE_SYSTEM_PAGETAB;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        const HRESULT result = m_standard->get_accState(child, state);
        if (SUCCEEDED(result) && IsSelf(child) && state->vt == VT_I4) {
            state->lVal &= ~(STATE_SYSTEM_PRESSED | STATE_SYSTEM_DEFAULT);
            state->lVal |= STATE_SYSTEM_SELECTABLE | (m_selected() ? STATE_SYSTEM_SELECTED : 0);
        }
        return result;
    }

    // The rest is the standard object's.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        return m_standard->GetTypeInfoCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return m_standard->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return m_standard->GetIDsOfNames(id, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* wrong) override {
        return m_standard->Invoke(member, id, locale, flags, parameters, result, exception, wrong);
    }
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return m_standard->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override {
        return m_standard->get_accChildCount(count);
    }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        return m_standard->get_accChild(child, object);
    }
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        return m_standard->get_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return m_standard->get_accValue(child, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
        return m_standard->get_accDescription(child, text);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override {
        return m_standard->get_accHelp(child, help);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
        return m_standard->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        return m_standard->get_accKeyboardShortcut(child, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) override {
        return m_standard->get_accFocus(focus);
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) override {
        return m_standard->get_accSelection(selection);
    }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return m_standard->get_accDefaultAction(child, action);
    }
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override {
        return m_standard->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override {
        return m_standard->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override {
        return m_standard->accNavigate(direction, start, end);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(long left, long top, VARIANT* child) override {
        return m_standard->accHitTest(left, top, child);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        return m_standard->accDoDefaultAction(child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
        return m_standard->put_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
        return m_standard->put_accValue(child, value);
    }

private:
    static bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

    IAccessible* m_standard;
    std::function<bool()> m_selected;
    LONG m_references = 1;
};

}  // namespace

void Announce(HWND tab, std::function<bool()> selected) {
    Subclass(tab, "ucTab.Accessible",
             [tab, selected = std::move(selected)](UINT message, WPARAM wParam,
                                                   LPARAM lParam) -> std::optional<LRESULT> {
                 if (message != WM_GETOBJECT || static_cast<LONG>(lParam) != OBJID_CLIENT)
                     return std::nullopt;
                 const Library& oleacc = Oleacc();
                 IAccessible* standard = nullptr;
                 if (oleacc.createStandard == nullptr || oleacc.lresultFromObject == nullptr ||
                     FAILED(oleacc.createStandard(tab, OBJID_CLIENT, IID_IAccessible,
                                                  reinterpret_cast<void**>(&standard))))
                     return std::nullopt;
                 auto* object = new TabObject(standard, selected);
                 const LRESULT answer = oleacc.lresultFromObject(IID_IAccessible, wParam, object);
                 object->Release();
                 return answer;
             });
}

}  // namespace PageTabAccessible
