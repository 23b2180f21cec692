#include "app/EntryPoint.h"

int main(int argc, char** argv) {
    return fieldcal::runApplication(argc, argv);
}
