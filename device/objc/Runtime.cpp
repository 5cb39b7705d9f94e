#include "Runtime.h"

#ifdef __APPLE__
extern "C" void objc_msgSend();

IMP messageFunction(id /*receiver*/, SEL /*selector*/) {
    return &objc_msgSend;
}
#else
extern "C" IMP objc_msg_lookup(id receiver, SEL selector);

IMP messageFunction(id receiver, SEL selector) {
    return objc_msg_lookup(receiver, selector);
}
#endif
