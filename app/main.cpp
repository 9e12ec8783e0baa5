#include "app/look.h"
#include "app/luckycup.h"

int main(int argc, char* argv[]) {
    PrepareLook();
    QApplication app(argc, argv);
    ApplyLook();
    return Main(app);
}
