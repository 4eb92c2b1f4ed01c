// Does not compile: the message takes one argument.

#include "run/Messages.h"

constexpr wxbrg::MessageWith<2> message = wxbrg::Message::ruleMissing;
