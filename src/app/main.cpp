#include "app/application.h"

int main(int argc, char **argv)
{
    return corvane::runApplication(argc, argv);
}
