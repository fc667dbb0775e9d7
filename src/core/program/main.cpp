#include "core/program/Application.h"

int main(int argc, char *argv[])
{
    Application application(argc, argv);
    return application.run();
}
