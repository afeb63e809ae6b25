#include "play/DeskCommand.h"

int main(int count, char** words) {
    return play::runDesk({words + 1, words + count});
}
