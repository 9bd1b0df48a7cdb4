#include "frame/form_state.h"

Integer EntryCount(class mainscreen& window)
{
    return ToInteger(CDbl(window.numstudents().Text()));
}

bool IsSet(TextField const& flag)
{
    return ToInteger(CDbl(flag.Text())) == 1;
}
