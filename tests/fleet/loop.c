// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// What a worker at least has to do, to measure workers by: take states at a broker and parse them; and
// publish a summary of the usual size for each. Or publish states as fast as they are taken.
//
// Usage: loop parse|answer PORT FILTER
//        loop publish PORT COUNT < LINES    lines of a topic and a state, again and again

#include <cjson/cJSON.h>
#include <mosquitto.h>

#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

// The library looks through all that are in flight for each answer.
enum { SummarySize = 1500, MostLines = 20000, InFlight = 100 };

static bool answers;
static char summary[SummarySize];
static char* topics[MostLines];
static char* states[MostLines];
static int lines, count, sent, acknowledged;

static void take(struct mosquitto* broker, void* data, const struct mosquitto_message* message)
{
    (void)data;
    cJSON* state = cJSON_ParseWithLength(message->payload, (size_t)message->payloadlen);
    if (!cJSON_IsArray(cJSON_GetObjectItem(state, "device_states")))
        fprintf(stderr, "loop: %s: no state\n", message->topic);
    cJSON_Delete(state);
    const char* slash = strrchr(message->topic, '/');
    if (slash && (answers || strstr(message->topic, "/end"))) { // the last one says that all is done
        char topic[256];
        snprintf(topic, sizeof topic, "%.*s/summary", (int)(slash - message->topic), message->topic);
        mosquitto_publish(broker, NULL, topic, SummarySize, summary, 1, true);
    }
}

static void send_more(struct mosquitto* broker)
{
    for (; sent < count && sent - acknowledged < InFlight; ++sent) {
        const char* state = states[sent % lines];
        mosquitto_publish(broker, NULL, topics[sent % lines], (int)strlen(state), state, 1, true);
    }
    if (acknowledged == count)
        mosquitto_disconnect(broker);
}

static void acknowledge(struct mosquitto* broker, void* data, int id)
{
    (void)data;
    (void)id;
    if (count > 0) {
        ++acknowledged;
        send_more(broker);
    }
}

static void subscribed(struct mosquitto* broker, void* data, int id, int granted, const int* qos)
{
    (void)broker, (void)data, (void)id, (void)granted, (void)qos;
    puts("ready");
    fflush(stdout);
}

static void read_states(void)
{
    static char line[1 << 16];
    while (lines < MostLines && fgets(line, sizeof line, stdin)) {
        line[strcspn(line, "\n")] = '\0';
        char* space = strchr(line, ' ');
        *space = '\0';
        topics[lines] = strdup(line);
        states[lines++] = strdup(space + 1);
    }
}

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    const bool publishes = strcmp(argv[1], "publish") == 0;
    answers = strcmp(argv[1], "answer") == 0;
    memset(summary, 'x', sizeof summary);
    mosquitto_lib_init();
    struct mosquitto* broker = mosquitto_new(NULL, true, NULL);
    mosquitto_int_option(broker, MOSQ_OPT_SEND_MAXIMUM, InFlight);
    mosquitto_message_callback_set(broker, take);
    mosquitto_publish_callback_set(broker, acknowledge);
    mosquitto_subscribe_callback_set(broker, subscribed);
    if (mosquitto_connect(broker, "127.0.0.1", atoi(argv[2]), 600) != MOSQ_ERR_SUCCESS)
        return 1;
    if (publishes) {
        count = atoi(argv[3]);
        read_states();
        if (lines == 0)
            return 2;
        send_more(broker);
    } else {
        mosquitto_subscribe(broker, NULL, argv[3], 1);
    }
    return mosquitto_loop_forever(broker, -1, 1) == MOSQ_ERR_SUCCESS ? 0 : 1;
}
