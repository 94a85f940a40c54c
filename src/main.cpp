// The program: made of the two libraries and nothing else.

#include "app/application.h"

int main(int argc, char** argv) {
    return tessaro::Application(argc, argv).run();
}
