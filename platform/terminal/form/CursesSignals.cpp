#include "platform/terminal/form/CursesSignals.h"

#include <cstddef>

namespace wxbrg {

CursesSignals::CursesSignals() : outside_(Present()) {}

void CursesSignals::EnterScreen() const {
    Set(OfCurses());
}

void CursesSignals::LeaveScreen() const {
    Set(outside_);
}

CursesSignals::Handlers CursesSignals::Present() {
    Handlers handlers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) sigaction(numbers[i], nullptr, &handlers[i]);
    return handlers;
}

void CursesSignals::Set(const Handlers& handlers) {
    for (std::size_t i = 0; i < numbers.size(); ++i) sigaction(numbers[i], &handlers[i], nullptr);
}

const CursesSignals::Handlers& CursesSignals::OfCurses() {
    static const Handlers ofCurses = Present();
    return ofCurses;
}

}  // namespace wxbrg
