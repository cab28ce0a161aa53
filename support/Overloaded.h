// One function object made of several, for std::visit: a case for each alternative of a variant.
#ifndef TALUX_SUPPORT_OVERLOADED_H
#define TALUX_SUPPORT_OVERLOADED_H

namespace talux {

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

} // namespace talux

#endif
