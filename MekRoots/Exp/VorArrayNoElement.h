// The element to which an access goes that has none: a[7] of an array of three.
//
//   int& number = VorArrayNoElement<int>::renew();    // 0, and may be written
//   VorArrayNoElement<int>::renew()               ->  0 again, at the same place
//
// There is one for each thread and type of element. It may still be asked for while the thread's last objects are
// destroyed, after its own end; what it is given to hold then is never freed.
#pragma once

#include <new>

template <class T>
class VorArrayNoElement
{
public:
    // Made anew each time, so that nothing written to it before is seen.
    static T& renew()
    {
        if (!s_hasEnded)
            endWithTheThread();
        destroy();
        s_pElement = ::new (static_cast<void*>(s_storage)) T();
        return *s_pElement;
    }

private:
    struct End
    {
        End() = default;
        End(const End&) = delete;
        End& operator=(const End&) = delete;
        ~End()
        {
            s_hasEnded = true;
            destroy();
        }
    };

    static void endWithTheThread()
    {
        static thread_local End end;
        static_cast<void>(end);
    }

    static void destroy()
    {
        if (s_pElement != nullptr)
            s_pElement->~T();
        s_pElement = nullptr;
    }

    alignas(T) static inline thread_local unsigned char s_storage[sizeof(T)] = {};
    static inline thread_local T* s_pElement = nullptr;
    static inline thread_local bool s_hasEnded = false;
};
