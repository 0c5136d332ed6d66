#include "winui/controls/ucPath.h"

#include <ole2.h>
#include <shellapi.h>

#include <string>

#include "base/PathDrop.h"
#include "error/mError.h"
#include "winui/WinText.h"
#include "winui/controls/Subclass.h"

namespace ucPath {

namespace {

std::optional<std::string> TextOf(IDataObject& data) {
    FORMATETC format{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    if (FAILED(data.GetData(&format, &medium)))
        return std::nullopt;
    std::optional<std::string> text = WinText::FromGlobal(medium.hGlobal);
    ReleaseStgMedium(&medium);
    return text;
}

std::vector<std::string> FilesOf(IDataObject& data) {
    FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    std::vector<std::string> files;
    if (FAILED(data.GetData(&format, &medium)))
        return files;
    auto drop = static_cast<HDROP>(medium.hGlobal);
    const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::wstring name(DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0');
        name.resize(DragQueryFileW(drop, i, name.data(), static_cast<UINT>(name.size())));
        files.push_back(WinText::Narrow(name));
    }
    ReleaseStgMedium(&medium);
    return files;
}

// The field's side of OLE drag and drop.
class DropTarget final : public IDropTarget {
public:
    DropTarget(HWND field, const char* name) : m_field(field), m_name(name) {}
    virtual ~DropTarget() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (id == IID_IUnknown || id == IID_IDropTarget) {
            *object = static_cast<IDropTarget*>(this);
            AddRef();
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        m_copy = false;
        mError::AsEntryPoint(std::string(m_name) + ".txtPath_OLEDragOver", [&] {
            const Offer offer = OfferOf(*data);
            m_copy = PathDrop::TakenAsCopy(offer.text.has_value(), offer.files.size());
        });
        return DragOver(0, {}, effect);
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
        if (m_copy && (*effect & DROPEFFECT_COPY))
            *effect = DROPEFFECT_COPY;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        DragOver(0, {}, effect);
        mError::AsEntryPoint(std::string(m_name) + ".txtPath_OLEDragDrop", [&] {
            const Offer offer = OfferOf(*data);
            WinText::Set(m_field, PathDrop::PathOf(offer.text, offer.files));
        });
        return S_OK;
    }

private:
    HWND m_field;
    const char* m_name;
    ULONG m_references = 1;
    bool m_copy = false;
};

}  // namespace

Offer OfferOf(IDataObject& data) {
    return {TextOf(data), FilesOf(data)};
}

void Attach(HWND field, const char* name) {
    auto* target = new DropTarget(field, name);
    RegisterDragDrop(field, target);
    target->Release();
    Subclass(field, "ucPath.txtPath_Change", [field](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_DESTROY)
            RevokeDragDrop(field);
        return std::nullopt;
    });
    SendMessageA(field, EM_LIMITTEXT, 0, 0);
}

}  // namespace ucPath
