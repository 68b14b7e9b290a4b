#pragma once

#include <cstddef>
#include <utility>

namespace KestoKernel {

// An owning pointer to a reference-counted object (anything with AddRef and Release).
// Constructing from a raw pointer takes a reference, so a freshly made object (count zero)
// is owned by the first RefPtr that holds it.
template <class T>
class RefPtr {
public:
    RefPtr() = default;
    RefPtr(std::nullptr_t) {}
    explicit RefPtr(T* p) : m_p(p)
    {
        if (m_p)
            m_p->AddRef();
    }
    RefPtr(const RefPtr& other) : RefPtr(other.m_p) {}
    RefPtr(RefPtr&& other) noexcept : m_p(std::exchange(other.m_p, nullptr)) {}
    template <class U>
    RefPtr(const RefPtr<U>& other) : RefPtr(other.get())
    {
    }
    template <class U>
    RefPtr(RefPtr<U>&& other) noexcept : m_p(other.Detach())
    {
    }
    ~RefPtr()
    {
        if (m_p)
            m_p->Release();
    }

    RefPtr& operator=(RefPtr other) noexcept
    {
        std::swap(m_p, other.m_p);
        return *this;
    }

    void reset(T* p = nullptr) { *this = RefPtr(p); }
    // Gives up the reference without releasing it; the caller now holds it.
    T* Detach() { return std::exchange(m_p, nullptr); }

    T* get() const { return m_p; }
    T& operator*() const { return *m_p; }
    T* operator->() const { return m_p; }
    explicit operator bool() const { return m_p != nullptr; }

    friend bool operator==(const RefPtr& a, const RefPtr& b) { return a.m_p == b.m_p; }
    friend bool operator==(const RefPtr& a, std::nullptr_t) { return a.m_p == nullptr; }

private:
    T* m_p = nullptr;
};

template <class T, class... Args>
RefPtr<T> MakeRef(Args&&... args)
{
    return RefPtr<T>(new T(std::forward<Args>(args)...));
}

// The dynamic_cast of a RefPtr: shares the object when it is a T, else empty.
template <class T, class U>
RefPtr<T> DynamicRefCast(const RefPtr<U>& p)
{
    return RefPtr<T>(dynamic_cast<T*>(p.get()));
}

} // namespace KestoKernel
