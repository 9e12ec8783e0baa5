#include "app/luckycup.h"
#include "kit/look.h"

int main(int argc, char* argv[]) {
    PrepareLook();
    QApplication app(argc, argv);
    ApplyLook();
    return Main(app);
}
