#include <malloc.h>

#include <cstdio>

#include "app/luckycup.h"
#include "kit/font_list.h"
#include "kit/look.h"
#include "kit/spoken.h"

int main(int argc, char* argv[]) {
    mallopt(M_ARENA_MAX, 2);  // each thread would set 64 MB of addresses aside for a heap of its own
    const auto fonts = ReadFontsAhead();
    if (!fonts.valid()) {  // Qt would wait for threads of its own for ever
        std::fputs("LuckyCup: the system lets it start no thread, and it needs a few.\n", stderr);
        return 1;
    }
    PrepareLook();
    QApplication app(argc, argv);
    MakeControlsSpeak();
    return Main(app, fonts);
}
