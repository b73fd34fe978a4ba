/*
 * editor_api.h - the boundary between the game (the host) and editor.dll.
 *
 * A host loads editor.dll, resolves the six exports below, fills an
 * editor_setup (its main window, its settings file and the table of host
 * operations) and calls editor_init.  Every record that crosses the boundary
 * is laid out here with its exact 32-bit offsets; the static assertions keep
 * both sides honest.  Usable from C and C++.
 */
#ifndef EDITOR_API_H
#define EDITOR_API_H

#include <stddef.h>
#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#define EDITOR_STATIC_ASSERT(cond, msg) static_assert(cond, msg)
#else
#define EDITOR_STATIC_ASSERT(cond, msg) _Static_assert(cond, msg)
#endif

#if defined(_MSC_VER) || defined(__MINGW32__)
#define EDITOR_CDECL __cdecl
#else
#define EDITOR_CDECL
#endif

EDITOR_STATIC_ASSERT(sizeof(void *) == 4, "the editor interface is 32-bit");

/* Checks one field's offset in a shared record. */
#define EDITOR_CHECK_OFFSET(type, field, offset) \
    EDITOR_STATIC_ASSERT(offsetof(type, field) == (offset), #type "." #field " offset")
#define EDITOR_CHECK_SIZE(type, size) \
    EDITOR_STATIC_ASSERT(sizeof(type) == (size), #type " size")

/* ------------------------------------------------------------------------ */
/* Circular doubly linked list shared with the host (12-byte nodes).        */
/* A head's value word holds its own address; nodes come from host_alloc.   */
/* ------------------------------------------------------------------------ */
typedef struct dlist_node {
    struct dlist_node *next;
    struct dlist_node *prev;
    uintptr_t value;
} dlist_node;
EDITOR_CHECK_SIZE(dlist_node, 12);
EDITOR_CHECK_OFFSET(dlist_node, next, 0);
EDITOR_CHECK_OFFSET(dlist_node, prev, 4);
EDITOR_CHECK_OFFSET(dlist_node, value, 8);

/* ------------------------------------------------------------------------ */
/* Editor state, passed by value to editor_update (17 words).               */
/* ------------------------------------------------------------------------ */
enum info_kind { INFO_OBJECT = 1, INFO_TERRAIN = 2 };

typedef struct editor_state {
    uint32_t host_word;     /* the host's own; only compared */
    int32_t edit_mode;      /* 0 to 4 */
    int32_t edit_submode;   /* 1, 2, 4097 or 4098 */
    float position[3];      /* metres */
    float orientation[3];   /* radians */
    int32_t info_kind;      /* INFO_OBJECT, INFO_TERRAIN, anything else: none */
    union {
        struct {
            uint32_t object_id;
            uint32_t unused;
            int32_t named; /* non-zero: name and group come from host_object_name */
        } object;
        struct {
            float location[3];
            float normal[3];
        } terrain;
    } info;
    const char *shape_name; /* INFO_OBJECT: null shows as "???" */
} editor_state;
EDITOR_CHECK_SIZE(editor_state, 68);
EDITOR_CHECK_OFFSET(editor_state, edit_mode, 4);
EDITOR_CHECK_OFFSET(editor_state, edit_submode, 8);
EDITOR_CHECK_OFFSET(editor_state, position, 12);
EDITOR_CHECK_OFFSET(editor_state, orientation, 24);
EDITOR_CHECK_OFFSET(editor_state, info_kind, 36);
EDITOR_CHECK_OFFSET(editor_state, info.object.object_id, 40);
EDITOR_CHECK_OFFSET(editor_state, info.object.named, 48);
EDITOR_CHECK_OFFSET(editor_state, info.terrain.location, 40);
EDITOR_CHECK_OFFSET(editor_state, info.terrain.normal, 52);
EDITOR_CHECK_OFFSET(editor_state, shape_name, 64);

/* ------------------------------------------------------------------------ */
/* Host operations (words 20 to 50 of editor_setup). All cdecl, int result. */
/* Reserved slots are never called and may be null.                         */
/* ------------------------------------------------------------------------ */
enum host_notify_code {
    NOTIFY_MODE = 1,        /* argument: the chosen edit_mode */
    NOTIFY_POSITION = 4,    /* argument: address of three floats X, Y, Z (metres) */
    NOTIFY_ORIENTATION = 5  /* argument: address of three floats X, Y, Z (radians) */
};

/* Acquire (1) or release (0) a list handed over for choosing. */
enum { HOST_LIST_RELEASE = 0, HOST_LIST_ACQUIRE = 1 };

struct heli_order_record;
struct waypoint_record;
struct heli_group_record;
struct patrol_point;

typedef int(EDITOR_CDECL *host_notify_fn)(int code, uintptr_t argument);
typedef int(EDITOR_CDECL *host_typed_list_fn)(int object_type, dlist_node **list, int acquire);
typedef int(EDITOR_CDECL *host_list_fn)(dlist_node **list, int acquire);
typedef int(EDITOR_CDECL *host_order_create_fn)(uint32_t kind, struct heli_order_record **order);
typedef int(EDITOR_CDECL *host_order_destroy_fn)(struct heli_order_record **order);
typedef int(EDITOR_CDECL *host_order_copy_fn)(struct heli_order_record *source,
                                              struct heli_order_record **copy);
typedef int(EDITOR_CDECL *host_waypoint_create_fn)(struct waypoint_record **waypoint);
typedef int(EDITOR_CDECL *host_waypoint_destroy_fn)(struct waypoint_record **waypoint);
typedef int(EDITOR_CDECL *host_waypoint_copy_fn)(struct waypoint_record *source,
                                                 struct waypoint_record **copy);
typedef int(EDITOR_CDECL *host_heli_group_create_fn)(struct heli_group_record **group);
typedef int(EDITOR_CDECL *host_heli_group_destroy_fn)(struct heli_group_record **group);
typedef int(EDITOR_CDECL *host_heli_group_copy_fn)(struct heli_group_record *source,
                                                   struct heli_group_record **copy);
typedef int(EDITOR_CDECL *host_patrol_point_destroy_fn)(struct patrol_point **point);
typedef int(EDITOR_CDECL *host_patrol_point_create_fn)(const char *marker_name,
                                                       struct patrol_point **point);
typedef int(EDITOR_CDECL *host_object_exists_fn)(const char *name);
typedef void *(EDITOR_CDECL *host_alloc_fn)(uint32_t size);
typedef int(EDITOR_CDECL *host_free_fn)(void *block, uint32_t size);
typedef int(EDITOR_CDECL *host_object_name_fn)(uint32_t object_id, int by_name, char *names64);

typedef struct host_ops {
    host_notify_fn host_notify;                             /* slot 20 */
    host_typed_list_fn host_reference_list;                 /* 21 */
    host_list_fn host_unit_list;                            /* 22 */
    host_list_fn host_message_target_list;                  /* 23 */
    host_list_fn host_formation_list;                       /* 24 */
    host_list_fn host_marker_list;                          /* 25 */
    host_list_fn host_unit_list_standalone;                 /* 26, released through 22 */
    host_list_fn host_rally_point_list;                     /* 27 */
    void *reserved_28;
    void *reserved_29;
    host_order_create_fn host_order_create;                 /* 30 */
    host_order_destroy_fn host_order_destroy;               /* 31 */
    host_order_copy_fn host_order_copy;                     /* 32 */
    void *reserved_33;
    void *reserved_34;
    host_waypoint_create_fn host_waypoint_create;           /* 35 */
    host_waypoint_destroy_fn host_waypoint_destroy;         /* 36 */
    host_waypoint_copy_fn host_waypoint_copy;               /* 37 */
    void *reserved_38;
    host_heli_group_create_fn host_heli_group_create;       /* 39 */
    host_heli_group_destroy_fn host_heli_group_destroy;     /* 40 */
    host_heli_group_copy_fn host_heli_group_copy;           /* 41 */
    void *reserved_42;
    void *reserved_43;
    void *reserved_44;
    host_patrol_point_destroy_fn host_patrol_point_destroy; /* 45 */
    host_patrol_point_create_fn host_patrol_point_create;   /* 46 */
    host_object_exists_fn host_object_exists;               /* 47 */
    host_alloc_fn host_alloc;                               /* 48 */
    host_free_fn host_free;                                 /* 49 */
    host_object_name_fn host_object_name;                   /* 50 */
} host_ops;
EDITOR_CHECK_SIZE(host_ops, 31 * 4);

/* ------------------------------------------------------------------------ */
/* Setup record, passed by value to editor_init (51 words).                 */
/* ------------------------------------------------------------------------ */
typedef struct editor_setup {
    editor_state state;          /* words 0 to 16: the initial state */
    HWND main_window;            /* word 17: owns every editor window */
    const char *settings_file;   /* word 18: null means no settings */
    const char *settings_folder; /* word 19: put in front of the file name; may be null */
    host_ops ops;                /* words 20 to 50 */
} editor_setup;
EDITOR_CHECK_SIZE(editor_setup, 204);
EDITOR_CHECK_OFFSET(editor_setup, main_window, 68);
EDITOR_CHECK_OFFSET(editor_setup, settings_file, 72);
EDITOR_CHECK_OFFSET(editor_setup, settings_folder, 76);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_notify, 80);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_reference_list, 84);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_unit_list, 88);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_message_target_list, 92);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_formation_list, 96);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_marker_list, 100);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_unit_list_standalone, 104);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_rally_point_list, 108);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_order_create, 120);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_order_destroy, 124);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_order_copy, 128);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_waypoint_create, 140);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_waypoint_destroy, 144);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_waypoint_copy, 148);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_heli_group_create, 156);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_heli_group_destroy, 160);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_heli_group_copy, 164);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_patrol_point_destroy, 180);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_patrol_point_create, 184);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_object_exists, 188);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_alloc, 192);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_free, 196);
EDITOR_CHECK_OFFSET(editor_setup, ops.host_object_name, 200);

/* ------------------------------------------------------------------------ */
/* Requests of editor_window.                                               */
/* ------------------------------------------------------------------------ */
enum editor_request {
    REQUEST_MESSAGE_BOX = 0,        /* arg1 text, arg2 message_kind */
    REQUEST_CONFIRM_QUIT = 1,
    REQUEST_INVALID_SELECTION = 2,
    REQUEST_NOTHING_SELECTED = 3,
    REQUEST_CREATE_OBJECTS = 4,     /* arg1 create_objects_record * */
    REQUEST_SAVE_WORLD_FILE = 5,    /* arg1 buffer (in: start folder, out: path), arg2 size */
    REQUEST_SAVE_MISSION_FILE = 6,  /* as 5 */
    REQUEST_CONFIRM_DELETE = 7,
    REQUEST_UNMATCHED_GROUP = 8,
    REQUEST_GROUP_COMPOSITION = 9,  /* arg1 group_record *, arg2 group list or null */
    REQUEST_OBJECT_NAMES = 10,      /* arg1 dlist of unit_entry * */
    REQUEST_GROUP_LIST = 11,        /* arg1 group list */
    REQUEST_BOMBING_RUN = 12,       /* arg1 bombing_run_record * */
    REQUEST_RALLY_POINT = 13,       /* arg1 rally_point_record * */
    REQUEST_EDIT_HELI_GROUP = 14,   /* arg1 heli_group_record *, arg2 available units */
    REQUEST_LIST_HELI_GROUPS = 15   /* arg1 heli group list, arg2 available units */
};

enum message_kind {
    MESSAGE_ERROR = 0,
    MESSAGE_WARNING = 1,
    MESSAGE_INFORMATION = 2,
    MESSAGE_QUESTION = 3
};

/* ======================================================================== */
/* Records of the dialogs. Each section belongs to one dialog family.       */
/* ======================================================================== */

/* --- Create New Objects ------------------------------------------------- */

/* Field bits of create_objects_record.preset and .enabled. */
enum create_objects_field {
    CO_TYPE = 0x001,     /* type: combo box 1008 */
    CO_REF_OBJ = 0x002,  /* ref_obj: combo box 1021 */
    CO_NUMBER = 0x004,   /* number: edit 1010 */
    CO_OBJ_DIST = 0x008, /* obj_dist: edit 1012 */
    CO_CAM_DIST = 0x010, /* cam_dist: edit 1020 */
    CO_AALIGN = 0x020,   /* aalign: radio buttons 1015, 1017, 1018 */
    CO_AACAMREL = 0x040, /* aacamrel: check box 1016 */
    CO_ORIENT = 0x080,   /* orient: radio buttons 1022, 1023, 1024 */
    CO_OCAMREL = 0x100   /* ocamrel: check box 1025 */
};

/* The kinds of object the designer can place (create_objects_record.type). */
enum object_type {
    OBJECT_WORLD = 0,          /* "World (General)" */
    OBJECT_CULTURAL = 1,       /* "Cultural" */
    OBJECT_GRALLS = 2,         /* "Gralls (Ground Units with weapons)" */
    OBJECT_GROUP_WAYPOINT = 3, /* "Group Waypoint Object" */
    OBJECT_BOMBING_RUN = 4,    /* "Bombing Run" */
    OBJECT_RALLY_POINT = 5,    /* "Rally Point" */
    OBJECT_HELICOPTER = 6,     /* "Helicopter" */
    OBJECT_GRUNIT = 7,         /* "Grunit" */
    OBJECT_MAN = 8,            /* "Man" */
    OBJECT_TYPE_COUNT = 9
};

/* Axes of aalign and orient. */
enum { CO_AXIS_X = 1, CO_AXIS_Y = 2, CO_AXIS_Z = 3 };

/* REQUEST_CREATE_OBJECTS: what the host offers (enabled), what it already
 * knows (preset), and on OK the designer's choices. */
typedef struct create_objects_record {
    uint32_t preset;   /* fields shown from this record instead of the remembered values */
    uint32_t enabled;  /* fields the designer may set; only these are validated and changed */
    int32_t type;      /* object_type, 0 to 8 */
    char ref_obj[64];  /* reference object name, at most 63 characters */
    uint32_t number;   /* 1 to 10 */
    float obj_dist;    /* metres between objects, > 0 */
    float cam_dist;    /* metres from the camera, > 0 */
    int32_t aalign;    /* CO_AXIS_X, CO_AXIS_Y or CO_AXIS_Z */
    int32_t aacamrel;  /* 0 or 1 */
    int32_t orient;    /* CO_AXIS_X, CO_AXIS_Y or CO_AXIS_Z */
    int32_t ocamrel;   /* 0 or 1 */
} create_objects_record;
EDITOR_CHECK_SIZE(create_objects_record, 104);
EDITOR_CHECK_OFFSET(create_objects_record, preset, 0);
EDITOR_CHECK_OFFSET(create_objects_record, enabled, 4);
EDITOR_CHECK_OFFSET(create_objects_record, type, 8);
EDITOR_CHECK_OFFSET(create_objects_record, ref_obj, 12);
EDITOR_CHECK_OFFSET(create_objects_record, number, 76);
EDITOR_CHECK_OFFSET(create_objects_record, obj_dist, 80);
EDITOR_CHECK_OFFSET(create_objects_record, cam_dist, 84);
EDITOR_CHECK_OFFSET(create_objects_record, aalign, 88);
EDITOR_CHECK_OFFSET(create_objects_record, aacamrel, 92);
EDITOR_CHECK_OFFSET(create_objects_record, orient, 96);
EDITOR_CHECK_OFFSET(create_objects_record, ocamrel, 100);

/* --- Ground forces -------------------------------------------------------- */

/* A unit as the host lists it, and as a group's member list holds it. */
typedef struct unit_entry {
    char name[32];
    char type_name[32]; /* object type name */
    int32_t id;         /* the key by which entries are matched */
} unit_entry;
EDITOR_CHECK_SIZE(unit_entry, 68);
EDITOR_CHECK_OFFSET(unit_entry, name, 0);
EDITOR_CHECK_OFFSET(unit_entry, type_name, 32);
EDITOR_CHECK_OFFSET(unit_entry, id, 64);

/* Sarge order types; the numbers are the record's. Type 1 does not exist. */
enum sarge_order_type {
    SARGE_ORDER_HALT = 0,
    SARGE_ORDER_DEFEND = 2,
    SARGE_ORDER_BARRAGE = 3,
    SARGE_ORDER_MOBILE_DEFENCE = 4,
    SARGE_ORDER_ADVANCE = 5,
    SARGE_ORDER_MARCH = 6
};

/* One order of a ground group (a slot of group_record.orders). */
typedef struct sarge_order_record {
    int32_t type;              /* sarge_order_type */
    char name[32];
    float duration;            /* seconds: Halt and Barrage, else 0 */
    char destination[32];      /* waypoint marker name: Barrage, Advance, March */
    char formation[32];        /* Advance and March */
    float formation_rotation;  /* degrees: Advance and March */
    char message[32];          /* message on completion */
    char message_target[32];   /* where the message goes; empty when none */
} sarge_order_record;
EDITOR_CHECK_SIZE(sarge_order_record, 172);
EDITOR_CHECK_OFFSET(sarge_order_record, type, 0);
EDITOR_CHECK_OFFSET(sarge_order_record, name, 4);
EDITOR_CHECK_OFFSET(sarge_order_record, duration, 36);
EDITOR_CHECK_OFFSET(sarge_order_record, destination, 40);
EDITOR_CHECK_OFFSET(sarge_order_record, formation, 72);
EDITOR_CHECK_OFFSET(sarge_order_record, formation_rotation, 104);
EDITOR_CHECK_OFFSET(sarge_order_record, message, 108);
EDITOR_CHECK_OFFSET(sarge_order_record, message_target, 140);

/* What fires a contingency order; 0 in a fresh record. */
enum trigger_type {
    TRIGGER_ENEMY_CLOSE = 1,
    TRIGGER_UNDER_FIRE = 2,
    TRIGGER_DAMAGE = 3,
    TRIGGER_MESSAGE = 4,
    TRIGGER_CONTINUE = 5
};

/* A sarge order carried out when its trigger fires (group_record.contingencies). */
typedef struct contingency_order_record {
    int32_t trigger;           /* trigger_type */
    sarge_order_record order;
    char next_order[16];       /* at most 15 characters */
    int32_t survivors;         /* Damage */
    float distance;            /* Enemy Close: metres */
    char trigger_string[32];   /* Message and Continue */
} contingency_order_record;
EDITOR_CHECK_SIZE(contingency_order_record, 232);
EDITOR_CHECK_OFFSET(contingency_order_record, trigger, 0);
EDITOR_CHECK_OFFSET(contingency_order_record, order, 4);
EDITOR_CHECK_OFFSET(contingency_order_record, order.type, 4);
EDITOR_CHECK_OFFSET(contingency_order_record, order.name, 8);
EDITOR_CHECK_OFFSET(contingency_order_record, order.duration, 40);
EDITOR_CHECK_OFFSET(contingency_order_record, order.destination, 44);
EDITOR_CHECK_OFFSET(contingency_order_record, order.formation, 76);
EDITOR_CHECK_OFFSET(contingency_order_record, order.formation_rotation, 108);
EDITOR_CHECK_OFFSET(contingency_order_record, order.message, 112);
EDITOR_CHECK_OFFSET(contingency_order_record, order.message_target, 144);
EDITOR_CHECK_OFFSET(contingency_order_record, next_order, 176);
EDITOR_CHECK_OFFSET(contingency_order_record, survivors, 192);
EDITOR_CHECK_OFFSET(contingency_order_record, distance, 196);
EDITOR_CHECK_OFFSET(contingency_order_record, trigger_string, 200);

/* group_record.status values set by the Group List dialog; others are the host's. */
enum group_status { GROUP_STATUS_ADDED = 1, GROUP_STATUS_REMOVED = 2 };

/* group_record.appearance: bits 0..7 the percent, then the By Group / By Unit choice. */
enum {
    APPEAR_PERCENT_MASK = 0xFF,
    APPEAR_BY_GROUP = 0x100,
    APPEAR_BY_UNIT = 0x200
};

enum { GROUP_MAX_ORDERS = 25, GROUP_MAX_CONTINGENCIES = 15, UNIT_TYPE_COUNT = 43 };

/* A ground group (sarge). The group list is a dlist of group_record pointers. */
typedef struct group_record {
    uint32_t host_word;        /* the host's; zero in a group the editor creates */
    char name[32];
    sarge_order_record orders[GROUP_MAX_ORDERS];
    int32_t order_count;       /* 0..25 */
    int32_t status;            /* GROUP_STATUS_*, or the host's own value */
    uint32_t appearance;       /* APPEAR_* bits */
    dlist_node *members;       /* dlist of unit_entry *; null counts as empty */
    contingency_order_record contingencies[GROUP_MAX_CONTINGENCIES];
    int32_t contingency_count; /* 0..15 */
    int32_t target_player_only;
    int32_t group_type;        /* index into unit_type_names, -1 for none */
} group_record;
EDITOR_CHECK_SIZE(group_record, 7844);
EDITOR_CHECK_OFFSET(group_record, host_word, 0);
EDITOR_CHECK_OFFSET(group_record, name, 4);
EDITOR_CHECK_OFFSET(group_record, orders, 36);
EDITOR_CHECK_OFFSET(group_record, order_count, 4336);
EDITOR_CHECK_OFFSET(group_record, status, 4340);
EDITOR_CHECK_OFFSET(group_record, appearance, 4344);
EDITOR_CHECK_OFFSET(group_record, members, 4348);
EDITOR_CHECK_OFFSET(group_record, contingencies, 4352);
EDITOR_CHECK_OFFSET(group_record, contingency_count, 7832);
EDITOR_CHECK_OFFSET(group_record, target_player_only, 7836);
EDITOR_CHECK_OFFSET(group_record, group_type, 7840);

/* --- Helicopter orders ----------------------------------------------------- */

/* The six order kinds; a kind's label is a string-table text. */
enum heli_order_kind {
    HELI_ORDER_ENGAGE = 0, /* "Engage": engage_order body */
    HELI_ORDER_DEPLOY = 1, /* "Deploy": dlist of deploy_entry * */
    HELI_ORDER_PICKUP = 2, /* "Pickup": dlist of pickup_entry * */
    HELI_ORDER_PATROL = 3, /* "Patrol": patrol_order body */
    HELI_ORDER_WAIT = 4,   /* "Wait": wait_order body */
    HELI_ORDER_LAND = 5,   /* "Land": land_order body */
    HELI_ORDER_KIND_COUNT = 6
};

/* engage_order.target_type */
enum target_type {
    TARGETS_ALL_ENEMIES = 0,
    TARGETS_PRIMARY = 1,
    TARGETS_SECONDARY = 2,
    TARGETS_SEAD = 3,
    TARGETS_AFV = 4
};

/* wait_order.mode; 0 and 1 wait for a time, 2 to 4 for a named object. */
enum wait_mode {
    WAIT_UNTIL_TIME = 0,
    WAIT_FIXED_TIME = 1,
    WAIT_FOR_OBJECT = 2,
    WAIT_FOR_SARGE = 3,
    WAIT_FOR_HELI_GROUP = 4
};

/* Engage: which targets, and how far out. The host's body may be longer; the
 * editor uses these 8 bytes. */
typedef struct engage_order {
    uint32_t target_type; /* target_type */
    float range;          /* engagement zone range, metres */
} engage_order;
EDITOR_CHECK_SIZE(engage_order, 8);
EDITOR_CHECK_OFFSET(engage_order, range, 4);

/* One cargo item or sarge to put down (a node value of a Deploy order's list);
 * the editor allocates and frees these with exactly 44 bytes. */
typedef struct deploy_entry {
    char name[32]; /* at most 31 characters */
    float x;
    float y;       /* never read or written by the editor */
    float z;
} deploy_entry;
EDITOR_CHECK_SIZE(deploy_entry, 44);
EDITOR_CHECK_OFFSET(deploy_entry, x, 32);
EDITOR_CHECK_OFFSET(deploy_entry, y, 36);
EDITOR_CHECK_OFFSET(deploy_entry, z, 40);

/* One cargo item or sarge to pick up (a node value of a Pickup order's list);
 * allocated and freed with exactly 25 bytes. */
typedef struct pickup_entry {
    char name[25]; /* at most 24 characters */
} pickup_entry;
EDITOR_CHECK_SIZE(pickup_entry, 25);

/* A patrol point, made by host_patrol_point_create from a waypoint marker.
 * It begins with the marker's name; the rest is the host's. */
typedef struct patrol_point {
    char marker_name[32];
} patrol_point;
EDITOR_CHECK_OFFSET(patrol_point, marker_name, 0);

/* Patrol: the points flown in order, and how many cycles. The host's body may
 * be longer; the editor uses these 8 bytes. */
typedef struct patrol_order {
    dlist_node *points; /* dlist of patrol_point * */
    uint32_t cycles;    /* 0 unlimited, 1 to 19 */
} patrol_order;
EDITOR_CHECK_SIZE(patrol_order, 8);
EDITOR_CHECK_OFFSET(patrol_order, cycles, 4);

/* Wait: for a time (modes 0, 1) or for an object within a range (2 to 4). */
typedef struct wait_order {
    uint32_t mode;  /* wait_mode */
    float time;     /* seconds: modes 0 and 1 */
    char name[32];  /* object, sarge or heli group: modes 2 to 4; "NO_OBJECT" otherwise */
    float range;    /* metres: modes 2 to 4 */
} wait_order;
EDITOR_CHECK_SIZE(wait_order, 44);
EDITOR_CHECK_OFFSET(wait_order, time, 4);
EDITOR_CHECK_OFFSET(wait_order, name, 8);
EDITOR_CHECK_OFFSET(wait_order, range, 40);

/* Land: twelve landing positions, of which the editor edits x and z. */
typedef struct land_position {
    float x;
    float y; /* never read or written by the editor */
    float z;
} land_position;
enum { LAND_POSITIONS = 12 };
typedef struct land_order {
    land_position positions[LAND_POSITIONS];
} land_order;
EDITOR_CHECK_SIZE(land_order, 144);
EDITOR_CHECK_OFFSET(land_order, positions[1].x, 12);
EDITOR_CHECK_OFFSET(land_order, positions[11].z, 140);

/* A helicopter order. The host owns the record, its body, its lists and their
 * entries; the editor relies on these first 12 bytes. */
typedef struct heli_order_record {
    uint32_t kind;      /* heli_order_kind */
    uint32_t host_word; /* never read or written by the editor */
    union {
        engage_order *engage; /* HELI_ORDER_ENGAGE */
        dlist_node *deploy;   /* HELI_ORDER_DEPLOY: dlist of deploy_entry * */
        dlist_node *pickup;   /* HELI_ORDER_PICKUP: dlist of pickup_entry * */
        patrol_order *patrol; /* HELI_ORDER_PATROL */
        wait_order *wait;     /* HELI_ORDER_WAIT */
        land_order *land;     /* HELI_ORDER_LAND */
        void *word;           /* the word as such */
    } body;
} heli_order_record;
EDITOR_CHECK_SIZE(heli_order_record, 12);
EDITOR_CHECK_OFFSET(heli_order_record, kind, 0);
EDITOR_CHECK_OFFSET(heli_order_record, body, 8);

/* The list host_marker_list builds on request: node values are the
 * NUL-terminated names of the mission's waypoint marker objects (each fits 31
 * characters). Several may be held at once. */
typedef dlist_node marker_list;

/* --- Helicopter groups and waypoints ------------------------------------- */

/* waypoint_record.height_level */
enum height_level { HEIGHT_NOE = 0, HEIGHT_LOW = 1, HEIGHT_MEDIUM = 2, HEIGHT_HIGH = 3 };
/* waypoint_record.non_threat_action and .threat_action */
enum contact_action { CONTACT_BYPASS = 0, CONTACT_ENGAGE = 1 };
/* waypoint_record.damage_level; DAMAGE_FMC is never offered */
enum damage_level { DAMAGE_FMC = 0, DAMAGE_PMC = 1, DAMAGE_NMC = 2 };
/* waypoint_record.fuel_low_action, .weapons_low_action and .damage_action;
 * ACTION_USE_ARSP for fuel and weapons, ACTION_USE_RALLY_POINT for damage. */
enum circumstance_action {
    ACTION_CONTINUE = 0,
    ACTION_USE_ARSP = 1,
    ACTION_USE_RALLY_POINT = 1,
    ACTION_GO_HOME = 2
};

/* One waypoint of a heli group's route. The host allocates it; the editor
 * relies on these first 76 bytes. Its settings are every word but
 * marker_name and orders. */
typedef struct waypoint_record {
    char marker_name[32];        /* waypoint marker object; empty when none is chosen */
    uint32_t height_level;       /* height_level */
    float transit_speed;         /* metres per second (shown and typed in km/h) */
    uint32_t carried_a;          /* not shown; carried into new waypoints with the settings */
    uint32_t carried_b;
    uint32_t non_threat_action;  /* contact_action when a non-threat is sighted */
    uint32_t threat_action;      /* contact_action when a threat is sighted */
    dlist_node *orders;          /* dlist of heli_order_record *, carried out in order */
    uint32_t damage_level;       /* damage_level at which damage_action starts */
    uint32_t fuel_low_action;    /* circumstance_action */
    uint32_t weapons_low_action; /* circumstance_action */
    uint32_t damage_action;      /* circumstance_action */
} waypoint_record;
EDITOR_CHECK_SIZE(waypoint_record, 76);
EDITOR_CHECK_OFFSET(waypoint_record, height_level, 32);
EDITOR_CHECK_OFFSET(waypoint_record, transit_speed, 36);
EDITOR_CHECK_OFFSET(waypoint_record, carried_a, 40);
EDITOR_CHECK_OFFSET(waypoint_record, carried_b, 44);
EDITOR_CHECK_OFFSET(waypoint_record, non_threat_action, 48);
EDITOR_CHECK_OFFSET(waypoint_record, threat_action, 52);
EDITOR_CHECK_OFFSET(waypoint_record, orders, 56);
EDITOR_CHECK_OFFSET(waypoint_record, damage_level, 60);
EDITOR_CHECK_OFFSET(waypoint_record, fuel_low_action, 64);
EDITOR_CHECK_OFFSET(waypoint_record, weapons_low_action, 68);
EDITOR_CHECK_OFFSET(waypoint_record, damage_action, 72);

/* heli_group_record.status values set by List Heli Groups; others are the host's. */
enum heli_group_status { HELI_GROUP_STATUS_ADDED = 1, HELI_GROUP_STATUS_REMOVED = 2 };

/* A heli group. The host allocates it; the editor relies on these first 56
 * bytes. The heli group list of request 15 is a dlist of these. */
typedef struct heli_group_record {
    uint32_t host_word;             /* never read or written by the editor */
    char name[32];
    dlist_node *members;            /* dlist of unit_entry *: the group's units */
    uint32_t rally_point_id;        /* the id of one rally_point_entry */
    dlist_node *waypoints;          /* dlist of waypoint_record *: the route, in flying order */
    heli_order_record *in_transit;  /* the sarges carried at the start; its kind is the host's choice */
    uint32_t status;                /* heli_group_status, or the host's own value */
} heli_group_record;
EDITOR_CHECK_SIZE(heli_group_record, 56);
EDITOR_CHECK_OFFSET(heli_group_record, name, 4);
EDITOR_CHECK_OFFSET(heli_group_record, members, 36);
EDITOR_CHECK_OFFSET(heli_group_record, rally_point_id, 40);
EDITOR_CHECK_OFFSET(heli_group_record, waypoints, 44);
EDITOR_CHECK_OFFSET(heli_group_record, in_transit, 48);
EDITOR_CHECK_OFFSET(heli_group_record, status, 52);

/* A node value of the host_rally_point_list list: laid out like a unit_entry,
 * of which the editor reads the name and the id. */
typedef struct rally_point_entry {
    char name[32];
    char host_bytes[32]; /* the host's */
    uint32_t id;
} rally_point_entry;
EDITOR_CHECK_SIZE(rally_point_entry, 68);
EDITOR_CHECK_OFFSET(rally_point_entry, id, 64);

/* The available_units list of requests 14 and 15 is a dlist of unit_entry *
 * (the record of the ground forces above); units move between it and a heli
 * group's members as fresh 68-byte entries. */

/* --- Air support ---------------------------------------------------------- */

/* One waypoint of a bombing run's ingress or egress route (a node value of
 * bombing_run_record.ingress or .egress); the editor allocates and frees
 * these with exactly 48 bytes. */
typedef struct bombing_waypoint {
    char name[32];          /* waypoint marker object, at most 31 characters */
    float height;           /* metres; 50.0 when the waypoint is added */
    uint8_t host_bytes[12]; /* the host's; never read or written by the editor */
} bombing_waypoint;
EDITOR_CHECK_SIZE(bombing_waypoint, 48);
EDITOR_CHECK_OFFSET(bombing_waypoint, height, 32);
EDITOR_CHECK_OFFSET(bombing_waypoint, host_bytes, 36);

/* REQUEST_BOMBING_RUN. Route edits change the host's lists at once; the
 * scalar fields and the aircraft choice are written on OK only. The host
 * allocates the record; the editor relies on these first 112 bytes. */
typedef struct bombing_run_record {
    uint32_t host_word;          /* never read or written by the editor */
    char name[32];
    float target_x;
    float target_y;              /* never read or written by the editor */
    float target_z;
    float release_height;        /* metres */
    float attack_radius;         /* metres */
    float attack_time;           /* seconds */
    char aircraft_type[32];      /* the text of one entry of aircraft_types */
    uint32_t aircraft_count;     /* 1 to 8 */
    dlist_node *ingress;         /* dlist of bombing_waypoint *, flown in to the target; never null */
    dlist_node *egress;          /* dlist of bombing_waypoint *, flown out; never null */
    uint32_t cancelled;          /* written when the dialog ends: 0 after OK, 1 after Cancel or closing */
    dlist_node *aircraft_types;  /* dlist of char *: the types to offer; may be null */
} bombing_run_record;
EDITOR_CHECK_SIZE(bombing_run_record, 112);
EDITOR_CHECK_OFFSET(bombing_run_record, name, 4);
EDITOR_CHECK_OFFSET(bombing_run_record, target_x, 36);
EDITOR_CHECK_OFFSET(bombing_run_record, target_y, 40);
EDITOR_CHECK_OFFSET(bombing_run_record, target_z, 44);
EDITOR_CHECK_OFFSET(bombing_run_record, release_height, 48);
EDITOR_CHECK_OFFSET(bombing_run_record, attack_radius, 52);
EDITOR_CHECK_OFFSET(bombing_run_record, attack_time, 56);
EDITOR_CHECK_OFFSET(bombing_run_record, aircraft_type, 60);
EDITOR_CHECK_OFFSET(bombing_run_record, aircraft_count, 92);
EDITOR_CHECK_OFFSET(bombing_run_record, ingress, 96);
EDITOR_CHECK_OFFSET(bombing_run_record, egress, 100);
EDITOR_CHECK_OFFSET(bombing_run_record, cancelled, 104);
EDITOR_CHECK_OFFSET(bombing_run_record, aircraft_types, 108);

/* One ARSP location of a rally point (a node value of
 * rally_point_record.arsp_locations); allocated and freed with exactly 12
 * bytes. */
typedef struct arsp_location {
    float x;
    float y; /* the rally point's y when the location was added; never edited */
    float z;
} arsp_location;
EDITOR_CHECK_SIZE(arsp_location, 12);
EDITOR_CHECK_OFFSET(arsp_location, y, 4);
EDITOR_CHECK_OFFSET(arsp_location, z, 8);

/* REQUEST_RALLY_POINT. ARSP additions, deletions and updates change the
 * host's list at once; the name and position are written on OK only. Name, x,
 * y and z stand where they stand in bombing_run_record. The editor relies on
 * these first 56 bytes. */
typedef struct rally_point_record {
    uint32_t host_word;          /* never read or written by the editor */
    char name[32];
    float x;
    float y;                     /* not shown; copied into each new ARSP location */
    float z;
    dlist_node *arsp_locations;  /* dlist of arsp_location *, in order; the host supplies a head */
    uint32_t cancelled;          /* written when the dialog ends: 0 after OK, 1 after Cancel or closing */
} rally_point_record;
EDITOR_CHECK_SIZE(rally_point_record, 56);
EDITOR_CHECK_OFFSET(rally_point_record, name, 4);
EDITOR_CHECK_OFFSET(rally_point_record, x, 36);
EDITOR_CHECK_OFFSET(rally_point_record, y, 40);
EDITOR_CHECK_OFFSET(rally_point_record, z, 44);
EDITOR_CHECK_OFFSET(rally_point_record, arsp_locations, 48);
EDITOR_CHECK_OFFSET(rally_point_record, cancelled, 52);

/* ======================================================================== */
/* The exports (ordinals 1 to 6), and their types for GetProcAddress.        */
/* ======================================================================== */
#ifdef EDITOR_IMPLEMENTATION
#define EDITOR_EXPORT
#else
#define EDITOR_EXPORT __declspec(dllimport)
#endif

EDITOR_EXPORT int EDITOR_CDECL editor_init(editor_setup setup);
EDITOR_EXPORT int EDITOR_CDECL editor_tidyup(void);
EDITOR_EXPORT int EDITOR_CDECL editor_update(editor_state state);
EDITOR_EXPORT int EDITOR_CDECL editor_win_messages(uintptr_t unused, uint32_t message);
EDITOR_EXPORT int EDITOR_CDECL editor_window(int request, uintptr_t arg1, uintptr_t arg2);
EDITOR_EXPORT int EDITOR_CDECL is_editor_window(HWND window);

typedef int(EDITOR_CDECL *editor_init_fn)(editor_setup setup);
typedef int(EDITOR_CDECL *editor_tidyup_fn)(void);
typedef int(EDITOR_CDECL *editor_update_fn)(editor_state state);
typedef int(EDITOR_CDECL *editor_win_messages_fn)(uintptr_t unused, uint32_t message);
typedef int(EDITOR_CDECL *editor_window_fn)(int request, uintptr_t arg1, uintptr_t arg2);
typedef int(EDITOR_CDECL *is_editor_window_fn)(HWND window);

#ifdef __cplusplus
}
#endif

#endif /* EDITOR_API_H */
