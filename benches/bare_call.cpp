// The yardstick of a start that finds an earlier one: loads the toolkit that Velmora loads, has no
// window and does nothing with it, connects, and leaves when it is answered.
// bare_call SOCKET

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <string>

int main(int argc, char** argv) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (argc != 2 || std::strlen(argv[1]) >= sizeof address.sun_path)
        return 2;
    std::strcpy(static_cast<char*>(address.sun_path), argv[1]);
    const int connection = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (::connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return 1;
    const std::string question = "show \n";
    char answer = 0;
    return ::send(connection, question.data(), question.size(), 0) > 0 &&
                   ::recv(connection, &answer, 1, 0) == 1
               ? 0
               : 1;
}
