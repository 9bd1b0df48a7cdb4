#include "platform/announcement.h"

#include "platform/qt/text.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/spoken_text.h"
#include "platform/qt/widgets/top_level.h"

void Announce(std::string_view text)
{
    if (TopLevel* const front = Program::instance().front.window()) {
        SpeakIn(*front, ToQt(text));
    }
}
