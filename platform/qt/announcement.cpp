#include "platform/announcement.h"

#include "platform/qt/text.h"
#include "platform/qt/widgets/spoken_text.h"
#include "platform/qt/widgets/top_level.h"

void Announce(std::string_view text)
{
    if (TopLevel* const front = TopLevel::front()) {
        SpeakIn(*front, ToQt(text));
    }
}
